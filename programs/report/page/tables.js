// The folded tables. They are made when they are opened.

function layerTable(profile) {
  const n = profile.layers.length, columns = profile.columns;
  const marks = profile.layers.map((layer, l) => (aboveScour(profile, l) ? 'at or above scour'
    : [...new Set(layer.flatMap((k) => k.m.map((m) => data.marks[m[1]][0])))].join(' ')));
  const named = (c) => c.name + (c.unit && c.unit !== 'code' ? ` [${c.unit}]` : '');
  return tableHtml({ title: 'Layers', rows: count(n),
    heads: [[['layer'], ['soil'], ...columns.map((c) => [c.name + (c.unit ? ` ${c.unit}` : '')]), ['remark']]],
    columns: [{ name: 'layer', show: String, v: count(n).map((l) => l + 1) },
      { name: 'soil', v: count(n).map((l) => (isSand(profile, l) ? 'sand' : 'clay')) },
      ...columns.map((c) => ({ name: named(c), show: c.level ? level : sig, v: list(c.v) })),
      { name: 'remark', v: marks }] }, ' class="layers"');
}

const levelColumns = (profile) => [{ name: 'layer', show: String, v: count(profile.layers.length).map((l) => l + 1) },
  { name: 'ZBOTM', show: level, v: column(profile, 'ZBOTM') }];

function capacityTable(profile, d) {
  const names = ['skin, compression', 'skin, tension', 'tip', 'capacity, compression', 'capacity, tension'];
  return tableHtml({ title: `Axial capacity, ${diameterName(profile, d)}`, rows: count(profile.layers.length),
    heads: [[['layer'], [`level${unit('length')}`], ...names.map((name) => [name + unit('force')])]],
    columns: [...levelColumns(profile), ...names.map((name, i) => ({ name, show: sig, v: list(profile.capacity[d][i]) }))] });
}

function peakTable(profile, n) {
  const plot = profile.depth.plots[n];
  const name = (line) => diameterName(profile, line.d) + (line.name ? `, ${line.name}` : '');
  return tableHtml({ title: plot.title, rows: count(profile.layers.length),
    heads: [[['layer'], [`level${unit('length')}`], ...plot.lines.map((line) => [name(line)])]],
    columns: [...levelColumns(profile), ...plot.lines.map((line) => ({ name: name(line), show: sig, v: list(line.v) }))] });
}

function markTable(profile) {
  const rows = profile.marked;
  if (rows.length === 0) return '<p>No curve is marked.</p>';
  const column = (name, f) => ({ name, show: String, v: rows.map(f) });
  return tableHtml({ title: 'Marked curves', rows: count(rows.length),
    heads: [[['curve'], ['letter'], ['mark'], ['group'], ['layers'], ['curves'], ['greatest']]],
    columns: [column('curve', (r) => r[0]), column('letter', (r) => data.marks[r[1]][0]), column('mark', (r) => data.marks[r[1]][1]),
      column('group', (r) => (r[2] ? 'look here' : 'as the method makes it')), column('layers', (r) => r[3]),
      column('curves', (r) => r[4]), column('greatest', (r) => r[5])] }) +
    '<ul class="note">' + data.marks.map(([letter, name, meaning]) => `<li><b>${letter}</b> ${esc(name)}: ${esc(meaning)}</li>`).join('') + '</ul>';
}

function generalTable(profile) {
  return tableHtml({ title: 'General values', rows: count(profile.general.length), heads: [[['value'], ['unit'], ['number']]],
    columns: [{ name: 'value', v: profile.general.map((g) => g[0]) }, { name: 'unit', v: profile.general.map((g) => g[1] || '–') },
      { name: 'number', show: sig, v: profile.general.map((g) => g[2]) }] }) +
    tableHtml({ title: 'Pile diameters', rows: count(profile.diameters.length), heads: [[['diameter'], [`D${unit('length')}`]]],
      columns: [{ name: 'number', show: String, v: profile.diameters.map((_, d) => d + 1) }, { name: 'D', show: sig, v: profile.diameters }] });
}

function givenTable(profile) {
  const names = ['Z level', 'x', 'y', 'z', 'hole diameter'];
  return tableHtml({ title: 'Given soil displacements and open hole', rows: count(profile.given.length),
    heads: [names.map((name) => [name + unit('length')])],
    columns: names.map((name, i) => ({ name, show: i === 0 ? level : sig, v: profile.given.map((g) => g[i]) })) });
}

const aboutHtml = () => `<pre>${data.date.map(esc).join('\n')}</pre><p>` + (data.named
  ? `Units as named when this page was made: ${esc(data.units.force)} and ${esc(data.units.length)}.`
  : 'The file carries no units: numbers stand in the units of the run.') +
  ' Angles of friction are in degrees. A P-Y stress is the lateral resistance per unit length divided by the diameter, a T-Z stress the ' +
  'skin friction, a Q-Z stress the tip resistance; compression is positive. By default a pile tip takes no tension. ' +
  'Numbers on the screen have four significant digits, copies those of the file.</p>';

function folds(profile) {
  const peaks = profile.depth.plots.map((plot, n) => [plot, n]).filter(([plot]) => plot.title.startsWith('Peak'));
  const out = [['Marked curves', () => markTable(profile)], ['Layers', () => layerTable(profile)],
    ['Axial capacity', () => profile.diameters.map((_, d) => capacityTable(profile, d)).join('') + capacityNotes(profile)],
    ['Peak resistance', () => peaks.map(([, n]) => peakTable(profile, n)).join('')],
    ['General values', () => generalTable(profile)]];
  if (profile.given.length) out.push(['Given soil displacements', () => givenTable(profile)]);
  out.push(['The file and its numbers', aboutHtml]);
  return out;
}

function fillFold(profile, details) {
  if (!details.open || details.querySelector('.inside').innerHTML) return;
  details.querySelector('.inside').innerHTML = folds(profile)[details.dataset.fold][1]();
}

const tablesHtml = (profile) => '<h2>Tables</h2>' + folds(profile).map(([title], n) =>
  `<details data-fold="${n}"><summary>${title}</summary><div class="inside"></div></details>`).join('');

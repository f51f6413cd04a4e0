// Tables that scroll in themselves and are copied with all digits and tabs.

let models = [];

// A model has a title, heads (rows of [text, columns, rows]) and columns: name (for the copy), show (how a value is
// written), v (values), mark (letters by row), and rows, the numbers of the rows shown.
function tableHtml(model, attributes = '') {
  const id = models.push(model) - 1;
  const head = model.heads.map((row) => '<tr>' + row.map(([text, columns = 1, rows = 1]) =>
    `<th scope="${columns > 1 ? 'colgroup' : 'col'}" colspan="${columns}" rowspan="${rows}">${esc(text)}</th>`).join('') + '</tr>').join('');
  let body = '';
  for (const i of model.rows) {
    body += `<tr data-point="${i}">`;
    model.columns.forEach((c, n) => {
      const v = c.v[i];
      const text = v === null || v === undefined ? '' : typeof v === 'string' ? esc(v) : c.show(v);
      const mark = c.mark && c.mark[i] ? ` <b>${c.mark[i]}</b>` : '';
      body += n === 0 ? `<th scope="row">${text}</th>` : `<td${typeof v === 'string' ? ' class="text"' : ''}>${text}${mark}</td>`;
    });
    body += '</tr>';
  }
  return `<div class="table"><h3>${esc(model.title)} <button type="button" class="copy" data-copy="${id}" aria-label="copy table ${esc(model.title)}">copy table</button></h3>` +
    `<div class="scroll" tabindex="0" role="region" aria-label="${esc(model.title)}"><table${attributes}><thead>${head}</thead><tbody>${body}</tbody></table></div></div>`;
}

function tableText(model) {
  const cell = (v) => (v === null || v === undefined ? '' : typeof v === 'string' ? v : num(v));
  return [model.columns.map((c) => c.name).join('\t'),
    ...model.rows.map((i) => model.columns.map((c) => cell(c.v[i])).join('\t'))].join('\n') + '\n';
}

function copyText(text) {
  const byHand = () => {
    const area = document.createElement('textarea');
    area.value = text;
    document.body.appendChild(area);
    area.select();
    const done = document.execCommand('copy');
    area.remove();
    return done;
  };
  const tell = (good) => { byId('live').textContent = good ? 'The table was copied.' : 'The table could not be copied.'; };
  if (!navigator.clipboard) { tell(byHand()); return; }
  navigator.clipboard.writeText(text).then(() => tell(true), () => tell(byHand()));
}

document.addEventListener('click', (event) => {
  const button = event.target.closest && event.target.closest('button.copy');
  if (!button) return;
  copyText(tableText(models[button.dataset.copy]));
  button.textContent = 'copied';
  setTimeout(() => { button.textContent = 'copy table'; }, 1500);
});

const count = (n) => Array.from({ length: n }, (_, i) => i);

// The points of a kind of curve, two columns a diameter.
function pointTable(profile, l, n, shown, every) {
  const k = profile.layers[l][n], kind = profile.kinds[n], [, , s, x] = kind.words;
  const diameters = profile.diameters.map((_, d) => d).filter(shown);
  const longest = Math.max(0, ...diameters.map((d) => curveOf(k, d).x.length));
  const columns = [{ name: 'point', show: String, v: count(longest).map((i) => i + 1) }];
  for (const d of diameters) {
    const c = curveOf(k, d), mark = [];
    for (const m of k.m) if (m[0] === d && m[4] !== m[5]) mark[m[5]] = (mark[m[5]] || '') + data.marks[m[1]][0];
    const name = ` D=${num(profile.diameters[d])}`;
    columns.push({ name: x + name, show: sig, v: c.x }, { name: s + name, show: sig, v: c.s, mark });
  }
  const heads = [[['point', 1, 2], ...diameters.map((d) => [diameterName(profile, d), 2])],
    diameters.flatMap(() => [x + unitOf(kind.x), s + unitOf(kind.y)])].map((row, r) => (r ? row.map((t) => [t]) : row));
  return tableHtml({ title: `${kind.name} points of layer ${l + 1}`, heads, columns,
    rows: count(longest).filter((i) => every || (i >= k.f[0] && i <= k.f[1])) }, ` class="points" data-kind="${n}"`);
}

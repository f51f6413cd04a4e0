// Values over depth as steps by layer, each with the soil column at its left.

const depthBox = data.boxes.depth;

// One line stands for all diameters whose values are the same list.
function drawnLines(plot, shown) {
  const out = [];
  let same = plot.lines.some((line) => line.d >= 0);
  for (const name of new Set(plot.lines.map((line) => line.name))) {
    const group = plot.lines.filter((line) => line.name === name);
    if (group[0].d < 0) { out.push({ ...group[0], style: out.length, named: true }); continue; }
    const one = group.every((line) => line.v === group[0].v);
    same = same && one;
    if (one) out.push({ ...group[0], d: -1, style: 0 });
    else for (const line of group) if (shown(line.d)) out.push({ ...line, style: line.d });
  }
  return { lines: out, same };
}

// Skin friction adds up along a layer, tip resistance is that of the layer: capacity at the layer's top.
function capacityAtTop(profile, line, plot) {
  const tension = plot.title.endsWith('tension');
  const [compressionSkin, tensionSkin, tip] = profile.capacity[Math.max(line.d, 0)].map(list);
  const skin = tension ? tensionSkin : compressionSkin;
  return skin.map((_, l) => (l > 0 ? skin[l - 1] : 0) + (tension ? 0 : tip[l]));
}

// A step for each layer, or a slope within it where the values at the tops are given.
function stepLine(profile, values, x, y, style, tops) {
  let path = '', open = false;
  const dots = [], spacing = (depthBox[1] - depthBox[4]) / 9;
  let nextDot = 0;
  for (let l = 0; l < values.length; ++l) {
    const top = topOf(profile, l), end = Math.min(bottomOf(profile, l), y.high);
    if (top >= y.high) break;
    if (values[l] === null || (x.log && values[l] <= 0)) { open = false; continue; }
    const first = tops ? tops[l] : values[l];
    // A layer that the choice of depth cuts ends there.
    const last = first + (values[l] - first) * (end - top) / (bottomOf(profile, l) - top || 1);
    path += (open ? `H${px(x.at(first))}` : `M${px(x.at(first))} ${px(y.at(top))}`) +
      (tops ? `L${px(x.at(last))} ${px(y.at(end))}` : `V${px(y.at(end))}`);
    open = true;
    const middle = y.at(tops ? end : 0.5 * (top + end));
    if (middle >= nextDot) { dots.push([x.at(last), middle]); nextDot = middle + spacing + 5 * (style % 4); }
  }
  return styled(style, path, dots);
}

function depthScales(profile, plot, window, log) {
  const [W, H, L, R, T, B] = depthBox;
  const y = linear(profile.depth.windows[window].y, T, H - B);
  let x = linear(plot.axes[window], L, W - R);
  if (log) {
    const values = plot.lines.flatMap((line) => list(line.v)).filter((v) => v > 0);
    if (values.length) x = { ...logarithmic(...extremes(values), L, W - R), log: true };
  }
  x.title = plot.x;
  y.title = `Z level, downward${data.named ? ` [${data.units.length}]` : ''}`;
  return { x, y };
}

// What a plot shows and what it leaves out.
function depthNote(profile, plot, same) {
  const stresses = /^Peak (T-Z|Q-Z)/.test(plot.title);
  if (same && profile.diameters.length > 1)
    return 'The same for all diameters' + (stresses ? ': the stresses are those of one pile.' : '.');
  return '';
}

function depthPlot(profile, n, window, log, shown) {
  const plot = profile.depth.plots[n];
  const lists = plot.lines.map((line) => list(line.v));
  if (lists.every((values) => values.every((v) => v === null || v === 0))) return '';
  const { lines, same } = drawnLines(plot, shown), { x, y } = depthScales(profile, plot, window, log);
  const [, , L] = depthBox;
  const strip = soilPaths(profile, y, L - 26, 20, y.high) + `<path class="frame" d="M${L - 26} ${px(y.at(profile.sea))}h20V${px(y.at(y.high))}h-20z"/>`;
  const chosen = `<rect class="here band" x="${L}" width="${depthBox[0] - L - depthBox[3]}"/>`;
  const legend = lines.filter((line) => line.named).map((line) => `<span>${sample(line.style)}${esc(line.name)}</span> `).join('');
  const switches = plot.title === 'Peak P-Y' ? `<label><input type="checkbox" id="log"${log ? ' checked' : ''}> logarithmic</label>` : '';
  return `<div class="depth" data-plot="${n}"><h3>${esc(plot.title)} ${switches}</h3>` +
    svgOf(depthBox, 'over', `${plot.title} over depth`, frame(depthBox, x, y, true, L - 30) + strip + chosen +
      lines.map((line) => stepLine(profile, list(line.v), x, y, line.style, /^Axial/.test(plot.title) && capacityAtTop(profile, line, plot))).join('')) +
    `<p class="legend">${legend}</p><p class="readout"></p><p class="note">${depthNote(profile, plot, same)}</p></div>`;
}

function depthReadout(event, profile, window, shown) {
  const svg = event.target.closest && event.target.closest('svg.over');
  if (!svg) return -1;
  const box = svg.closest('.depth'), plot = profile.depth.plots[box.dataset.plot];
  const l = layerAt(profile, depthScales(profile, plot, window, false).y, placeIn(event, svg, depthBox));
  if (l < 0) return -1;
  const parts = drawnLines(plot, shown).lines.slice(0, 5).map((line) => {
    const v = list(line.v)[l], name = line.d >= 0 ? diameterName(profile, line.d) + (line.name ? `, ${line.name}` : '') : line.name;
    return `${name ? name + ': ' : ''}${v === null ? 'none' : sig(v)}`;
  });
  box.querySelector('.readout').textContent = `Layer ${l + 1}, ${level(topOf(profile, l))} to ${level(bottomOf(profile, l))}${unit('length')}. ${parts.join('; ')}`;
  return l;
}

// What the capacity is and is not.
function capacityNotes(profile) {
  const out = ['Axial capacity is the sum of the curves’ peaks: T-Z over the pile’s surface from the sea floor to each layer’s ' +
    'bottom, in compression with the peak of that layer’s Q-Z over the full tip area. The deck’s safety factors are in it; ' +
    'whether the soil plug holds is checked only as far as the method of the deck does.'];
  const deck = profile.deck;
  if (deck) out.push(`Only what lies below the local scour level, ${level(deck.scour)}${unit('length')}, counts.`);
  else out.push(`Local scour is not known: ${data.no_deck}`);
  if (deck && deck.pile && profile.diameters.some((D) => D !== deck.pile[0]))
    out.push(`A diameter that is not DIAMP, ${sig(deck.pile[0])}${unit('length')}, has the stresses of DIAMP.`);
  if (column(profile, 'T-Z').includes(100)) out.push('T-Z code 100 has no peak: from its first layer down skin friction and capacity are left empty.');
  if (column(profile, 'Q-Z').includes(100)) out.push('Q-Z code 100 has no peak: tip and capacity in compression are left empty at its levels.');
  return out.map((text) => `<p class="note wide">${esc(text)}</p>`).join('');
}

function depthsHtml(profile, window, log, shown) {
  const choices = profile.depth.windows.map((w, i) => `<option value="${i}"${i === window ? ' selected' : ''}>${esc(w.name)}</option>`).join('');
  const plots = profile.depth.plots.map((_, n) => depthPlot(profile, n, window, log, shown));
  return `<h2>Over depth</h2><p><label>Depth <select id="window">${choices}</select></label></p>` +
    `<div class="depths">${plots.join('')}</div>${capacityNotes(profile)}`;
}

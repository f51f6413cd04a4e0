// The soil column: layers by soil, scour, main layers, the pile. A click chooses the layer.

const columnBox = [200, 560, 50, 56, 18, 12];

// Layers as paths by soil: clay, sand, at or above scour.
function soilPaths(profile, y, left, width, bottom) {
  const paths = { clay: '', sand: '', scoured: '' };
  let from = 0;
  const soil = (l) => (aboveScour(profile, l) ? 'scoured' : isSand(profile, l) ? 'sand' : 'clay');
  for (let l = 0; l < profile.layers.length; ++l) {
    if (l + 1 < profile.layers.length && soil(l + 1) === soil(l) && bottomOf(profile, l) < bottom) continue;
    const top = y.at(Math.min(topOf(profile, from), bottom)), end = y.at(Math.min(bottomOf(profile, l), bottom));
    if (end > top) paths[soil(l)] += `M${left} ${px(top)}h${width}v${px(end - top)}h-${width}z`;
    from = l + 1;
  }
  return Object.entries(paths).map(([css, d]) => (d ? `<path class="${css}" d="${d}"/>` : '')).join('');
}

// The pile of the deck: two walls down to its tip, not to scale across.
function pileDrawing(deck, y, left, width) {
  if (!deck || !deck.pile) return '';
  const [, , tip] = deck.pile, end = y.at(Math.min(tip, y.high)), a = left + 0.38 * width, b = left + 0.62 * width;
  return `<path class="pile" d="M${px(a)} ${y.at(y.low)}V${px(end)}M${px(b)} ${y.at(y.low)}V${px(end)}"/>` +
    (tip <= y.high ? `<path class="pile" d="M${px(a - 4)} ${px(end)}H${px(b + 4)}"/>` : '');
}

function columnDrawing(profile) {
  const [W, H, L, R, T, B] = columnBox, width = W - L - R, bottom = profile.depth.windows[0].y;
  const y = linear(bottom, T, H - B);
  let out = soilPaths(profile, y, L, width, y.high), lines = '', looks = '';
  let before = -9;
  profile.layers.forEach((layer, l) => {
    const end = y.at(bottomOf(profile, l));
    if (end - before > 3) { lines += `M${L} ${px(end)}h${width}`; before = end; }
    if (layer.some((k) => k.m.some((m) => m[2] === 1)))
      looks += `M${L + width + 1} ${px(0.5 * (y.at(topOf(profile, l)) + end))}h5`;
  });
  out += `<path class="thin" d="${lines}"/><path class="looks" d="${looks}"/>`;
  for (const t of y.ticks) out += textAt('ty', L - 16, y.at(+t) + 3.5, t) + `<path class="thin" d="M${L - 13} ${px(y.at(+t))}h5"/>`;
  const marks = [[profile.sea, 'sea floor']];
  if (profile.scour > profile.sea) marks.push([profile.scour, 'scour']);
  if (profile.deck && profile.deck.scour > profile.scour) marks.push([profile.deck.scour, 'local']);
  let last = -9;
  for (const [z, text] of marks) {
    const at = y.at(z);
    out += `<path class="level" d="M${L - 6} ${px(at)}h${width + 8}"/>` + textAt('tl', L + width + 4, Math.max(at, last + 10) + 3, text);
    last = Math.max(at, last + 10);
  }
  if (profile.deck) {
    let top = profile.sea;
    for (const [number, end] of profile.deck.layers) {
      const middle = y.at(0.5 * (top + Math.min(end, y.high)));
      if (end <= y.high) out += `<path class="main" d="M${L} ${px(y.at(end))}h${width}"/>`;
      if (top < y.high) out += textAt('tm', L + 9, middle + 4, number);
      top = end;
    }
  }
  out += pileDrawing(profile.deck, y, L, width);
  return out;
}

function chosenMark(profile, l) {
  const [W, H, L, R, T, B] = columnBox, width = W - L - R, y = linear(profile.depth.windows[0].y, T, H - B);
  const top = y.at(topOf(profile, l)), end = Math.max(y.at(bottomOf(profile, l)), top + 3);
  return `<rect class="chosen" x="${L - 3}" y="${px(top)}" width="${width + 6}" height="${px(end - top)}"/>` +
    `<path class="arrow" d="M${L - 5} ${px(0.5 * (top + end))}l-7-5v10z"/>`;
}

function columnHtml(profile) {
  const deck = profile.deck, z = (v) => level(v) + unit('length');
  const swatch = (css, text) => `<span><svg class="swatch" viewBox="0 0 12 12" aria-hidden="true"><path class="${css}" d="M0 0h12v12h-12z"/></svg>${text}</span> `;
  return svgOf(columnBox, 'soil', 'Soil column with the chosen layer', columnDrawing(profile) + '<g id="chosen"></g>') +
    `<p class="note">${swatch('clay', 'clay')}${swatch('sand', 'sand')}${swatch('scoured', 'at or above scour')}</p>` +
    (deck && deck.pile ? `<p class="note">Pile of the deck: D ${sig(deck.pile[0])}, wall ${sig(deck.pile[1])}, tip at ${z(deck.pile[2])}. ` +
      'Numbers are main layers.</p>' : '');
}

// The layer at a place of a drawing whose levels run from axis.at(low) downward.
function layerAt(profile, axis, place) {
  const z = axis.low + (place - axis.at(axis.low)) / (axis.at(axis.high) - axis.at(axis.low)) * (axis.high - axis.low);
  const bottoms = column(profile, 'ZBOTM');
  if (z < profile.sea) return -1;
  return bottoms.findIndex((b) => z <= b);
}
const placeIn = (event, svg, box) => {
  const area = svg.getBoundingClientRect();
  return (event.clientY - area.top) * box[1] / area.height;
};

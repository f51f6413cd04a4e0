// The panels of a layer: one for each kind of curve.

const curveBox = data.boxes.curve;
const bracket = (title) => (/\[(.*)\]$/.exec(title) || ['', ''])[1];
const unitOf = (title) => (['run units', 'as given', ''].includes(bracket(title)) ? '' : ' ' + bracket(title));

// Scales of a panel and the place of point i of diameter d; null for what is not drawn.
function panelScales(profile, k, kind, range) {
  const [W, H, L, R, T, B] = curveBox;
  const full = range !== 'working';
  const y = linear(full ? k.fy : k.y, H - B, T);
  let x;
  if (range === 'log') {
    let low = Infinity, high = 0;
    for (let d = 0; d < profile.diameters.length; ++d)
      for (const v of curveOf(k, d).x) {
        const size = Math.abs(v);
        if (size > 0 && size < low) low = size;
        if (size > high) high = size;
      }
    x = high > 0 ? logarithmic(low, high, L, W - R) : linear(k.fx, L, W - R);
    x.title = kind.x.replace(' [', ', without sign [');
  } else {
    x = linear(full ? k.fx : k.x, L, W - R);
    x.title = kind.x;
  }
  y.title = kind.y;
  const place = (c, i) => {
    if (k.s && c.x[i] < 0) return null;
    const v = range === 'log' ? Math.abs(c.x[i]) : c.x[i];
    if (v < x.low || v > x.high || (range === 'log' && v === 0)) return null;
    return [x.at(v), y.at(c.s[i])];
  };
  return { x, y, place };
}

// With `print` dashes are pieces of their own, and markers keep some distance.
function curveLine(k, d, scales, range, print) {
  const c = curveOf(k, d), dash = data.styles[d][1], pieces = print && dash !== 'none';
  const points = c.x.map((v, i) => [v, c.s[i]]);
  const runs = range !== 'log' ? [points] : [points.filter(([v]) => v > 0)];
  if (range === 'log' && !k.s) runs.push(points.filter(([v]) => v < 0).map(([v, s]) => [-v, s]).reverse());
  let path = '';
  for (const run of runs) {
    const places = clip(run, scales.x.low, scales.x.high).map(([v, s]) => [scales.x.at(v), scales.y.at(s)]);
    path += pieces ? dashed(places, dash.split(' ').map(Number)) : polyline(places);
  }
  // Where many points lie at one place, one marker is enough.
  const dots = [];
  for (let i = 0; i < c.x.length; ++i) {
    const at = scales.place(c, i), last = dots[dots.length - 1];
    if (at && !(last && Math.abs(last[0] - at[0]) + Math.abs(last[1] - at[1]) < (print ? 16 : 1))) dots.push(at);
  }
  return styled(d, path, dots, pieces);
}

// Letters of the marks at their points, equal ones that would cover each other once.
function letters(k, shown, scales) {
  const places = [];
  for (const [d, mark, look, , from, to] of k.m) {
    if (!shown(d) || from === to) continue;
    const at = scales.place(curveOf(k, d), to);
    if (!at) continue;
    const letter = data.marks[mark][0];
    const there = places.find((p) => Math.abs(p.at[0] - at[0]) < 9 && Math.abs(p.at[1] - at[1]) < 9);
    if (!there) places.push({ at, text: letter, look });
    else if (!there.text.includes(letter)) { there.text += letter; there.look = there.look || look; }
  }
  return places.map((p) => textAt(p.look ? 'mk look' : 'mk', p.at[0], p.at[1] - 7, p.text)).join('');
}

function curvePlot(profile, l, n, range, shown, extra, print) {
  const k = profile.layers[l][n], kind = profile.kinds[n];
  const scales = panelScales(profile, k, kind, range);
  let out = frame(curveBox, scales.x, scales.y, false, curveBox[2] - 5);
  for (let d = 0; d < profile.diameters.length; ++d) if (shown(d)) out += curveLine(k, d, scales, range, print);
  return svgOf(curveBox, 'plot', `${kind.name} curves of layer ${l + 1}`, out + letters(k, shown, scales), extra);
}

// "peak 68.2 at z = 0.0152, residual 54.6 from z = 0.0305"
function markText(k, kind, [d, mark, , side, from, to, share]) {
  const c = curveOf(k, d), [, , s, x] = kind.words;
  const at = (i) => `${sig(Math.abs(c.s[i]))}${unitOf(kind.y)} at ${x} = ${sig(Math.abs(c.x[i]))}${unitOf(kind.x)}`;
  const where = k.s ? '' : side > 0 ? `, ${kind.sides[0]}` : side < 0 ? `, ${kind.sides[1]}` : '';
  switch (data.marks[mark][0]) {
    case 'S': return `peak ${at(from)}, residual ${at(to)}${where}`;
    case 'F': return `peak ${at(from)}, falls to ${sig(c.s[to] * Math.sign(c.x[to] || 1))}${unitOf(kind.y)} at ${x} = ${sig(Math.abs(c.x[to]))}${where}`;
    case 'P': return `peak ${at(from)}, again ${at(to)}${where}`;
    case 'V': return `${s} from ${at(from)} to ${at(to)}, a step of ${sig(100 * share)} % of the peak${where}`;
    case 'N': return `peak differs ${sig(share)} times from that of the layer above`;
    default: return 'no resistance';
  }
}

// One line a curve, those worth a look first. In a list of layers long lists of the method's own marks are counted only.
function markLists(profile, k, kind, shown, alone) {
  const lists = [[], []];
  for (const m of k.m)
    if (shown(m[0]))
      lists[m[2]].push(`<li><b>${data.marks[m[1]][0]}</b> ${esc(diameterName(profile, m[0]))}: ${data.marks[m[1]][1]}, ${esc(markText(k, kind, m))}</li>`);
  const block = (title, css, items) => (items.length === 0 ? ''
    : !alone && items.length > 3 && css === 'marks' ? `<p class="note">${title}: marks ${items.length}</p>`
    : `<details class="${css}"${items.length <= 3 ? ' open' : ''}><summary>${title} (${items.length})</summary><ul>${items.join('')}</ul></details>`);
  return block('Look here', 'marks look', lists[1]) + block('As the method makes it', 'marks', lists[0]);
}

function panelNote(profile, k, kind, n, range, shown) {
  let far = 0, beyond = 0;
  const none = profile.diameters.map((_, d) => d).filter((d) => shown(d) && curveOf(k, d).s.every((s) => s === 0));
  const zero = none.length === 0 ? '' : `${n < 3 ? 'No resistance' : 'No curve given here'}: ${none.map((d) => diameterName(profile, d)).join(', ')}. `;
  for (let d = 0; d < profile.diameters.length; ++d)
    if (shown(d))
      for (const v of curveOf(k, d).x)
        if (Math.abs(v) > k.x[1] * 1.0000001) { far = Math.max(far, Math.abs(v)); ++beyond; }
  return zero + (k.s ? 'Both sides are alike. ' : '') +
    (range === 'working' && beyond ? `The curves go on to ±${sig(far)}${unitOf(kind.x)}.` : '');
}

function panel(profile, l, n, range, shown, alone) {
  const k = profile.layers[l][n], kind = profile.kinds[n];
  const code = n < 3 ? kind.methods[column(profile, kind.name)[l]] : '';
  const extra = alone ? ' tabindex="0" aria-describedby="keys"' : '';
  return `<div class="panel" data-kind="${n}"><h3>${kind.name}${code ? ` <span>${esc(code)}</span>` : ''}</h3>` +
    curvePlot(profile, l, n, range, shown, extra, !alone) +
    (alone ? '<p class="readout">Point at a curve, or use the arrow keys in the plot, to read its numbers.</p>' : '') + `<p class="note">${esc(panelNote(profile, k, kind, n, range, shown))}</p>` +
    markLists(profile, k, kind, shown, alone) + '</div>';
}

function layerSummary(profile, l) {
  const at = (name) => column(profile, name)[l];
  const z = (v) => level(v) + unit('length');
  const strength = isSand(profile, l) ? `friction angle ${sig(at('PHIR'))}°` : `undrained strength ${sig(at('SURED'))}${unit('stress')}`;
  return `${isSand(profile, l) ? 'Sand' : 'Clay'}, ${level(topOf(profile, l))} to ${z(bottomOf(profile, l))}, curves at ` +
    `${z(at('ZLAY'))}` + (aboveScour(profile, l) ? ', at or above the scour level' : `, ${z(at('DEPTH'))} below local scour`) +
    `; ${strength}; effective stress ${sig(at('SIGZRES'))}${unit('stress')}`;
}

// The diameters that are shown as one drawing, for each printed page.
function printedLegend(profile, shown) {
  const all = profile.diameters.map((_, d) => d).filter(shown), across = 6;
  const cells = all.map((d, i) => `<g transform="translate(${140 * (i % across)} ${16 * Math.floor(i / across)})">` +
    styled(d, 'M1 8H43', [[22, 8]]) + textAt('tl', 49, 12, diameterName(profile, d)) + '</g>');
  return svgOf([140 * across, 16 * Math.ceil(all.length / across)], 'key', 'Diameters', cells.join(''));
}

function layerHtml(profile, l, range, shown, alone) {
  return `<h2>Layer ${l + 1} of ${profile.layers.length}</h2><p class="summary">${esc(layerSummary(profile, l))}</p>` +
    (alone ? '' : printedLegend(profile, shown)) +
    `<div class="panels">${profile.kinds.map((_, n) => panel(profile, l, n, range, shown, alone)).join('')}</div>`;
}

// Reading the numbers of a point, by pointer and by keyboard.

function peakOf(c, positive) {
  let peak = 0;
  c.s.forEach((s, i) => { if ((c.x[i] >= 0) === positive) peak = Math.max(peak, Math.abs(s)); });
  return peak;
}

function pointText(profile, k, kind, n, d, i) {
  const c = curveOf(k, d), [, , s, x] = kind.words;
  const peak = peakOf(c, c.x[i] >= 0);
  return `${diameterName(profile, d)}, point ${i + 1}: ${x} = ${sig(c.x[i])}${unitOf(kind.x)}, ` +
    `${s} = ${sig(c.s[i])}${unitOf(kind.y)}` +
    (peak > 0 ? `, ${n === 0 ? 'p/pu' : `${s}/peak`} = ${sig(Math.abs(c.s[i]) / peak)}` : '') +
    (n < 3 || kind.name === 'BS-Y' ? `, ${x}/D = ${sig(c.x[i] / profile.diameters[d])}` : '');
}

function showPoint(box, profile, l, range, d, i) {
  const n = +box.dataset.kind, k = profile.layers[l][n], kind = profile.kinds[n];
  const at = panelScales(profile, k, kind, range).place(curveOf(k, d), i);
  const drawing = box.querySelector('svg.plot');
  let ring = drawing.querySelector('.ring');
  if (!ring) {
    ring = document.createElementNS('http://www.w3.org/2000/svg', 'circle');
    ring.setAttribute('class', 'ring');
    ring.setAttribute('r', '7');
    drawing.appendChild(ring);
  }
  ring.setAttribute('visibility', at ? 'visible' : 'hidden');
  if (at) { ring.setAttribute('cx', px(at[0])); ring.setAttribute('cy', px(at[1])); }
  box.dataset.d = d;
  box.dataset.i = i;
  const text = pointText(profile, k, kind, n, d, i);
  box.querySelector('.readout').textContent = text;
  document.querySelectorAll('tr.at').forEach((r) => r.classList.remove('at'));
  document.querySelectorAll(`#points table[data-kind="${n}"] tr[data-point="${i}"]`).forEach((r) => r.classList.add('at'));
  return text;
}

// The nearest drawn point to the pointer.
function pointAt(event, profile, l, range, shown) {
  const drawing = event.target.closest && event.target.closest('svg.plot');
  const box = drawing && drawing.closest('.panel');
  if (!box) return;
  const k = profile.layers[l][box.dataset.kind];
  const scales = panelScales(profile, k, profile.kinds[box.dataset.kind], range);
  const area = drawing.getBoundingClientRect(), [W, H] = curveBox;
  const mx = (event.clientX - area.left) * W / area.width, my = (event.clientY - area.top) * H / area.height;
  let best = null;
  for (let d = 0; d < profile.diameters.length; ++d) {
    if (!shown(d)) continue;
    const c = curveOf(k, d);
    for (let i = 0; i < c.x.length; ++i) {
      const at = scales.place(c, i);
      if (!at) continue;
      const far = (at[0] - mx) ** 2 + (at[1] - my) ** 2;
      if (!best || far < best.far) best = { far, d, i };
    }
  }
  if (best) showPoint(box, profile, l, range, best.d, best.i);
}

// Left and right go along a curve, up and down to the next diameter that is shown. True for a key that was used.
function pointKey(event, profile, l, range, shown) {
  const box = event.target.closest && event.target.closest('.panel');
  const keys = { ArrowLeft: [0, -1], ArrowRight: [0, 1], ArrowUp: [-1, 0], ArrowDown: [1, 0] };
  if (!box || !keys[event.key] || event.target.tagName !== 'svg') return false;
  const [dd, di] = keys[event.key];
  const k = profile.layers[l][box.dataset.kind], all = profile.diameters.map((_, d) => d).filter(shown);
  if (all.length === 0) return true;
  let d = all.indexOf(+box.dataset.d), i = +box.dataset.i;
  const first = d < 0 || !box.dataset.i;
  if (first) { d = 0; i = Math.floor(curveOf(k, all[0]).x.length / 2); }
  d = Math.min(Math.max(d + (first ? 0 : dd), 0), all.length - 1);
  i = Math.min(Math.max(i + (first ? 0 : di), k.s ? Math.floor(curveOf(k, all[d]).x.length / 2) : k.f[0]), k.f[1]);
  byId('live').textContent = showPoint(box, profile, l, range, all[d], i);
  return true;
}

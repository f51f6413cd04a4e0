#include "report/page.hpp"

namespace tervak::report {

// The drawing below makes the markup of layer_html.cpp and svg_plot.cpp; a change there is a change here.
const std::string_view page_script = R"js(
(function () {
  'use strict';
  const data = JSON.parse(document.getElementById('rif-data').textContent);
  const [W, H, L, R, T, B] = data.box;
  const escapes = { '&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;', "'": '&#39;' };
  const esc = (s) => s.replace(/[&<>"']/g, (c) => escapes[c]);
  const px = (v) => v.toFixed(1);
  // The rule of number_text.
  const num = (v) => {
    const size = Math.abs(v);
    if (v === 0) return '0';
    return size >= 1e-4 && size < 1e9 ? String(v) : v.toExponential().replace('e+', 'e');
  };
  const xOf = (k, x) => L + (x - k.x[0]) / (k.x[1] - k.x[0]) * (W - L - R);
  const yOf = (k, y) => T + (1 - (y - k.y[0]) / (k.y[1] - k.y[0])) * (H - T - B);
  const text = (css, x, y, s) => `<text class="${css}" x="${px(x)}" y="${px(y)}">${esc(s)}</text>`;

  function frame(k, kind) {
    const right = W - R, bottom = H - B;
    let path = '', zero = '', texts = '';
    for (const t of k.xt) {
      const part = `M${px(xOf(k, +t))} ${px(T)}V${px(bottom)}`;
      if (+t === 0) zero += part; else path += part;
      texts += text('tx', xOf(k, +t), bottom + 14, t);
    }
    for (const t of k.yt) {
      const part = `M${px(L)} ${px(yOf(k, +t))}H${px(right)}`;
      if (+t === 0) zero += part; else path += part;
      texts += text('ty', L - 5, yOf(k, +t) + 3.5, t);
    }
    return `<path class="grid" d="${path}"/><path class="zero" d="${zero}"/>` +
      `<path class="frame" d="M${px(L)} ${px(T)}H${px(right)}V${px(bottom)}H${px(L)}Z"/>` + texts +
      text('tx', 0.5 * (L + right), bottom + 32, kind.x) +
      `<text class="tx" transform="translate(12 ${px(0.5 * (T + bottom))}) rotate(-90)">${esc(kind.y)}</text>`;
  }

  // The part of a curve within the drawn range, its ends interpolated.
  function clip(curve, low, high) {
    const out = [];
    for (let i = 0; i < curve.length; i += 2) {
      const x = curve[i + 1], y = curve[i], x0 = curve[i - 1], y0 = curve[i - 2];
      const at = (v) => [v, y0 + (y - y0) * (v - x0) / (x - x0)];
      if (i > 0 && x0 < low && x > low) out.push(at(low));
      if (i > 0 && x0 < high && x > high) out.push(at(high));
      if (x >= low && x <= high) out.push([x, y]);
    }
    return out;
  }

  function line(k, curve, d) {
    const [dash, marker, fill] = data.styles[d];
    const points = clip(curve, k.x[0], k.x[1]);
    const path = points.map(([x, y], i) => (i ? 'L' : 'M') + px(xOf(k, x)) + ' ' + px(yOf(k, y))).join('');
    const dots = points.filter(([x]) => x > k.x[0] && x < k.x[1]).map(([x, y]) =>
      `M${px(xOf(k, x))} ${px(yOf(k, y))}${marker}`).join('');
    return `<path class="line" stroke-dasharray="${dash}" d="${path}"/><path class="dot" fill="${fill}" d="${dots}"/>`;
  }

  function plot(k, kind) {
    let out = `<svg class="plot" viewBox="0 0 ${px(W)} ${px(H)}" role="img" aria-label="${esc(kind.name)} curves">` +
      frame(k, kind) + k.c.map((c, d) => line(k, c, d)).join('');
    for (const [d, p, letter] of k.p) {
      const x = k.c[d][2 * p + 1], y = k.c[d][2 * p];
      if (x >= k.x[0] && x <= k.x[1]) out += text('mk', xOf(k, x), yOf(k, y) - 7, letter);
    }
    return out + '</svg>';
  }

  function table(k, kind, diameters, from) {
    const to = Math.min(from + 3, diameters.length);
    let head = '', sub = '', body = '', rows = 0;
    for (let d = from; d < to; ++d) {
      head += `<th colspan="3">D = ${num(diameters[d])}</th>`;
      sub += `<th>${kind.symbols[1]}</th><th>${kind.symbols[0]}</th><th></th>`;
      rows = Math.max(rows, k.c[d].length / 2);
    }
    for (let i = 0; i < rows; ++i) {
      body += `<tr><th>${i + 1}</th>`;
      for (let d = from; d < to; ++d) {
        if (2 * i >= k.c[d].length) { body += '<td></td><td></td><td></td>'; continue; }
        const letters = k.p.filter(([md, mp]) => md === d && mp === i).map((m) => m[2]).join('');
        body += `<td>${num(k.c[d][2 * i + 1])}</td><td>${num(k.c[d][2 * i])}</td><td class="m">${letters}</td>`;
      }
      body += '</tr>';
    }
    return `<table class="points"><thead><tr><th></th>${head}</tr><tr><th>pt</th>${sub}</tr></thead>` +
      `<tbody>${body}</tbody></table>`;
  }

  function layer(profile, index, legend) {
    const l = profile.layers[index];
    let out = `<h3>Layer ${index + 1} of ${profile.layers.length}</h3><p class="summary">${esc(l.h)}</p>`;
    l.k.forEach((k, n) => {
      let tables = '';
      for (let d = 0; d < profile.diameters.length; d += 3) tables += table(k, profile.kinds[n], profile.diameters, d);
      out += `<div class="kind" data-kind="${n}"><h4>${profile.kinds[n].name}</h4><div class="pair"><figure>` +
        `<p class="legend">${legend}</p>${plot(k, profile.kinds[n])}<p class="readout"></p>` +
        `<figcaption>${esc(k.n)}</figcaption><ul class="marks">` + k.m.map((m) => `<li>${esc(m)}</li>`).join('') +
        `</ul></figure><div class="tables">${tables}</div></div></div>`;
    });
    return out;
  }

  // The nearest point of the plot under the pointer: its numbers, a ring around it, its row in the table.
  function point(event, profile, index) {
    const box = event.target.closest && event.target.closest('.kind');
    const drawing = event.target.closest && event.target.closest('svg.plot');
    if (!box || !drawing) return;
    const kind = profile.kinds[box.dataset.kind], k = profile.layers[index].k[box.dataset.kind];
    const area = drawing.getBoundingClientRect();
    const mx = (event.clientX - area.left) * W / area.width, my = (event.clientY - area.top) * H / area.height;
    let best = null;
    k.c.forEach((c, d) => {
      for (let i = 0; i < c.length; i += 2) {
        const x = xOf(k, c[i + 1]), y = yOf(k, c[i]);
        if (c[i + 1] < k.x[0] || c[i + 1] > k.x[1]) continue;
        const far = (x - mx) * (x - mx) + (y - my) * (y - my);
        if (!best || far < best.far) best = { far, d, i, x, y };
      }
    });
    if (!best) return;
    const c = k.c[best.d];
    box.querySelector('.readout').textContent = `D = ${num(profile.diameters[best.d])}, point ${best.i / 2 + 1}: ` +
      `${kind.displacement} = ${num(c[best.i + 1])}, ${kind.stress} = ${num(c[best.i])}`;
    let ring = drawing.querySelector('.ring');
    if (!ring) {
      ring = document.createElementNS('http://www.w3.org/2000/svg', 'circle');
      ring.setAttribute('class', 'ring');
      ring.setAttribute('r', '7');
      drawing.appendChild(ring);
    }
    ring.setAttribute('cx', px(best.x));
    ring.setAttribute('cy', px(best.y));
    box.querySelectorAll('tr.at').forEach((r) => r.classList.remove('at'));
    const rows = box.querySelectorAll('table.points')[Math.floor(best.d / 3)].tBodies[0].rows;
    rows[best.i / 2].classList.add('at');
  }

  data.profiles.forEach((profile, n) => {
    const curves = document.getElementById(`p${n + 1}-curves`);
    const place = curves.querySelector('.layer');
    const links = curves.querySelectorAll('.layers a');
    const legend = place.querySelector('.legend').innerHTML;
    const hint = () => place.querySelectorAll('.readout').forEach((p) => {
      p.textContent = 'Point at a curve to read its numbers.';
    });
    const all = document.createElement('button');
    const allText = 'Show all layers, for printing';
    let shown = profile.shown;
    all.textContent = allText;

    function choose(index) {
      shown = index;
      curves.classList.remove('all');
      all.textContent = allText;
      place.innerHTML = layer(profile, index, legend);
      links.forEach((a, i) => {
        if (i === index) a.setAttribute('aria-current', 'true'); else a.removeAttribute('aria-current');
      });
      hint();
    }

    function follow() {
      const parts = /^#p(\d+)-l(\d+)$/.exec(location.hash);
      if (!parts || +parts[1] !== n + 1 || +parts[2] < 1 || +parts[2] > profile.layers.length) return;
      choose(+parts[2] - 1);
      curves.scrollIntoView();
      // Once more when what came into view above it has its true height.
      requestAnimationFrame(() => curves.scrollIntoView());
    }

    curves.querySelector('.layers').addEventListener('click', (event) => {
      const link = event.target.closest('a');
      if (!link) return;
      event.preventDefault();
      history.replaceState(null, '', link.getAttribute('href'));
      choose([...links].indexOf(link));
    });
    place.addEventListener('pointermove', (event) => {
      if (!curves.classList.contains('all')) point(event, profile, shown);
    });
    all.addEventListener('click', () => {
      if (curves.classList.contains('all')) { choose(shown); return; }
      curves.classList.add('all');
      all.textContent = 'Show one layer';
      place.innerHTML = profile.layers.map((l, i) => layer(profile, i, legend)).join('');
    });
    curves.querySelector('.layers').prepend(all);
    window.addEventListener('hashchange', follow);
    hint();
    follow();
  });
})();
)js";

}  // namespace tervak::report

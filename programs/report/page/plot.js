// Axes and lines of all drawings. Ticks and styles come with the data.

const px = (v) => v.toFixed(1);
const textAt = (css, x, y, s) => `<text class="${css}" x="${px(x)}" y="${px(y)}">${esc(s)}</text>`;

// An axis between two places of the drawing: at() gives the place of a value.
function linear([low, high, ticks], from, to) {
  const scale = (to - from) / (high - low);
  return { low, high, at: (v) => from + (v - low) * scale,
    ticks: data.lists[ticks] ? data.lists[ticks].split(' ') : [] };
}

// Decades. Where more than six fit, some are left out.
function logarithmic(low, high, from, to) {
  let first = Math.floor(Math.log10(low)), last = Math.ceil(Math.log10(high));
  if (first === last) ++last;
  const scale = (to - from) / (last - first), step = Math.ceil((last - first) / 6), ticks = [];
  for (let n = first; n <= last; n += step) ticks.push(num(+`1e${n}`));
  return { low: +`1e${first}`, high: +`1e${last}`, ticks, at: (v) => from + (Math.log10(v) - first) * scale };
}

// Grid, frame, labels and titles. x.title stands below, above with `top`; labels of y end at `labels`.
function frame([W, H, L, R, T, B], x, y, top, labels) {
  const right = W - R, bottom = H - B;
  let path = '', zero = '', across = '', up = '';
  const label = (px1, py, t) => `<tspan x="${px(px1)}" y="${px(py)}">${esc(t)}</tspan>`;
  for (const t of x.ticks) {
    const part = `M${px(x.at(+t))} ${T}V${bottom}`;
    if (+t === 0) zero += part; else path += part;
    across += label(x.at(+t), top ? T - 5 : bottom + 14, t);
  }
  for (const t of y.ticks) {
    const part = `M${L} ${px(y.at(+t))}H${right}`;
    if (+t === 0) zero += part; else path += part;
    up += label(labels, y.at(+t) + 3.5, t);
  }
  return `<path class="grid" d="${path}"/><path class="zero" d="${zero}"/>` +
    `<path class="frame" d="M${L} ${T}H${right}V${bottom}H${L}Z"/>` +
    `<text class="ty">${up}</text><text class="tx">${across}${label(0.5 * (L + right), top ? T - 24 : bottom + 32, x.title)}</text>` +
    `<text class="tx" transform="translate(11 ${px(0.5 * (T + bottom))}) rotate(-90)">${esc(y.title)}</text>`;
}

// The dashes of a line as pieces of their own. A browser that prints makes outlines of each dash of a pattern, which
// takes minutes for hundreds of layers. Points are places of the drawing.
function dashed(points, pattern) {
  let out = '', n = 0, left = pattern[0];
  for (let i = 1; i < points.length; ++i) {
    let [x, y] = points[i - 1];
    const [ex, ey] = points[i];
    for (let rest = Math.hypot(ex - x, ey - y); rest > 0;) {
      const step = Math.min(rest, left), share = step / rest, nx = x + (ex - x) * share, ny = y + (ey - y) * share;
      if (n % 2 === 0) out += `M${px(x)} ${px(y)}L${px(nx)} ${px(ny)}`;
      [x, y] = [nx, ny];
      rest -= step;
      left -= step;
      if (left <= 0) left = pattern[++n % pattern.length];
    }
  }
  return out;
}

const polyline = (points) => points.map(([x, y], i) => `${i ? 'L' : 'M'}${px(x)} ${px(y)}`).join('');

function styled(style, path, dots, plain) {
  const [colour, dash, marker, fill] = data.styles[style];
  return `<g stroke="${colour}"><path class="line"${plain || dash === 'none' ? '' : ` stroke-dasharray="${dash}"`} d="${path}"/>` +
    `<path class="dot" fill="${fill}" d="${dots.map(([x, y]) => `M${px(x)} ${px(y)}${marker}`).join('')}"/></g>`;
}

const sample = (style) => '<svg class="sample" viewBox="0 0 44 10" aria-hidden="true">' +
  styled(style, 'M1 5H43', [[22, 5]]) + '</svg>';

// The part of a line within low and high, its ends interpolated. Points are [x, y].
function clip(points, low, high) {
  const out = [];
  points.forEach(([x, y], i) => {
    const [x0, y0] = i > 0 ? points[i - 1] : [x, y];
    const at = (v) => [v, y0 + (y - y0) * (v - x0) / (x - x0)];
    if (x0 < low && x > low) out.push(at(low));
    if (x0 < high && x > high) out.push(at(high));
    if (x >= low && x <= high) out.push([x, y]);
  });
  return out;
}

const svgOf = ([W, H], css, label, content, extra = '') =>
  `<svg class="${css}" viewBox="0 0 ${W} ${H}" role="img" aria-label="${esc(label)}"${extra}>${content}</svg>`;

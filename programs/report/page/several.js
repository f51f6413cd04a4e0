// Several layers at once, on the screen and on paper. A browser that prints spends its time by element and by piece of
// text, so that a curve is one path, a plot has one text, and the marks are plain lines.

// Every second label where there are more than five, zero among them.
function fewer(ticks) {
  const zero = Math.max(0, ticks.indexOf('0'));
  return ticks.length > 5 ? ticks.filter((_, i) => (i - zero) % 2 === 0) : ticks;
}

function plainFrame([W, H, L, R, T, B], x, y) {
  const right = W - R, bottom = H - B;
  const down = (t) => `M${px(x.at(+t))} ${T}V${bottom}`, across = (t) => `M${L} ${px(y.at(+t))}H${right}`;
  const isZero = (t) => +t === 0, not = (t) => +t !== 0;
  return `<path class="grid" d="${x.ticks.filter(not).map(down).join('')}${y.ticks.filter(not).map(across).join('')}"/>` +
    `<path class="frame" d="M${L} ${T}H${right}V${bottom}H${L}Z${x.ticks.filter(isZero).map(down).join('')}${y.ticks.filter(isZero).map(across).join('')}"/>`;
}

const spanAt = (css, x, y, s) => `<tspan class="${css}" x="${px(x)}" y="${px(y)}">${esc(s)}</tspan>`;

// The labels of the axes, one title for both.
function plainLabels([W, H, L, R, T, B], x, y) {
  return fewer(y.ticks).map((t) => spanAt('ty', L - 5, y.at(+t) + 3.5, t)).join('') +
    fewer(x.ticks).map((t) => spanAt('tx', x.at(+t), H - B + 14, t)).join('') +
    spanAt('tx', 0.5 * (L + W - R), H - B + 32, `${y.title} over ${x.title}`);
}

// A circle is printed as eight curves, which takes twice the paper's bytes of an octagon.
function octagon(marker) {
  const circle = /^m-([\d.]+) 0a/.exec(marker);
  if (!circle) return marker;
  const r = +circle[1], a = px(0.29 * r), b = px(0.71 * r);
  return `m-${r} 0l${a} ${b}l${b} ${a}l${b}-${a}l${a}-${b}l-${a}-${b}l-${b}-${a}l-${b} ${a}z`;
}

// A line as pieces between two points, which have no inside, so that line and markers are one path. A browser that
// prints makes outlines of each dash of a pattern, which takes minutes: dashes are pieces, too. A white marker stays empty.
function plainLine(style, lines, dots) {
  const [colour, dash, marker, fill] = data.styles[style];
  const pieces = (points) => (dash === 'none' ? dashed(points, [Infinity]) : dashed(points, dash.split(' ').map((n) => 2 * n)));
  return `<path class="both" stroke="${colour}" fill="${fill === '#fff' ? 'none' : fill}" d="${lines.map(pieces).join('')}` +
    `${dots.map(([x, y]) => `M${px(x)} ${px(y)}${octagon(marker)}`).join('')}"/>`;
}

function plainPlot(profile, l, n, range, shown) {
  const k = profile.layers[l][n], kind = profile.kinds[n], scales = panelScales(profile, k, kind, range);
  const near = profile.diameters.filter((_, d) => shown(d)).length > 3 ? 40 : 16;
  let out = plainFrame(curveBox, scales.x, scales.y);
  for (let d = 0; d < profile.diameters.length; ++d)
    if (shown(d)) out += plainLine(d, linesOf(k, d, scales, range), dotsOf(curveOf(k, d), scales, near));
  return svgOf(curveBox, 'plot', `${kind.name} curves of layer ${l + 1}`, `${out}<text>${plainLabels(curveBox, scales.x, scales.y)}` +
    letters(k, shown, scales, 20).map((p) => spanAt(p.look ? 'mk look' : 'mk', p.at[0], p.at[1] - 7, p.text)).join('') + '</text>');
}

// Long lists of the method's own marks are counted only.
function plainMarks(profile, k, kind, shown) {
  return markGroups(profile, k, kind, shown).filter(([, , items]) => items.length).map(([title, css, items]) =>
    `<p class="${css}">${title}: ` + (items.length > 3 && css === 'marks' ? `marks ${items.length}`
      : items.map(([letter, text]) => `<br>${letter} ${esc(text)}`).join('')) + '</p>').join('');
}

function plainPanel(profile, l, n, range, shown) {
  const k = profile.layers[l][n], kind = profile.kinds[n], note = panelNote(profile, k, kind, n, range, shown);
  return `<div class="panel">${panelHeading(profile, l, n)}${plainPlot(profile, l, n, range, shown)}` +
    (note ? `<p class="note">${esc(note)}</p>` : '') + plainMarks(profile, k, kind, shown) + '</div>';
}

// The diameters that are shown as one picture of the style sheet, which costs each layer one element.
function keyStyle(profile, shown) {
  const all = profile.diameters.map((_, d) => d).filter(shown), across = 6, wide = 140, high = 16;
  const x = (i) => wide * (i % across), y = (i) => high * Math.floor(i / across) + 8;
  const picture = `<svg xmlns="http://www.w3.org/2000/svg" width="${wide * across}" height="${high * Math.ceil(all.length / across)}" ` +
    'font-family="Liberation Sans, Arial, Helvetica, sans-serif" font-size="11" stroke-width="1.3">' +
    all.map((d, i) => plainLine(d, [[[x(i) + 1, y(i)], [x(i) + 43, y(i)]]], [[x(i) + 22, y(i)]]) +
      `<text x="${x(i) + 49}" y="${y(i) + 4}">${esc(diameterName(profile, d))}</text>`).join('') + '</svg>';
  return `<style>.key { content: url("data:image/svg+xml,${encodeURIComponent(picture)}"); }</style>`;
}

const plainLayer = (profile, l, range, shown) => `<div class="one">${layerHeading(profile, l)}<div class="key" role="img" aria-label="Diameters"></div>` +
  `<div class="panels">${profile.kinds.map((_, n) => plainPanel(profile, l, n, range, shown)).join('')}</div></div>`;

const plainLayers = (profile, chosen, range, shown) => keyStyle(profile, shown) + chosen.map((l) => plainLayer(profile, l, range, shown)).join('');

'use strict';
// Numbers of the page's data and how they are written. The parts of the script share one scope.

const data = JSON.parse(document.getElementById('rif-data').textContent);
const escapes = { '&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;', "'": '&#39;' };
const esc = (s) => String(s).replace(/[&<>"']/g, (c) => escapes[c]);
const byId = (id) => document.getElementById(id);

// All digits of the file.
function num(v) {
  const size = Math.abs(v);
  if (v === 0) return '0';
  return size >= 1e-4 && size < 1e9 ? String(v) : v.toExponential().replace('e+', 'e');
}
// On the screen: four significant digits, levels to the hundredth.
const sig = (v) => num(+v.toPrecision(4));
const level = (v) => (Math.abs(v) < 0.005 ? 0 : v).toFixed(2);
const unit = (name) => (data.named ? ' ' + data.units[name] : '');

// "5*3" is 5 three times, "5+3" is 5, 6, 7 and 8 with the nine digits of the file, "-" a missing value.
function pushPart(out, part) {
  if (part === '-') { out.push(null); return; }
  const at = part.search(/[*+]/);
  const v = +(at < 0 ? part : part.slice(0, at));
  const n = at < 0 ? 0 : +part.slice(at + 1);
  if (part[at] === '*') {
    for (let i = 0; i < n; ++i) out.push(v);
    return;
  }
  out.push(v);
  for (let i = 1; i <= n; ++i) out.push(+(v + i).toPrecision(9));
}

// A list that begins with "-|" or "0|" is the upper half of a curve: mirrored, or with zeros below.
function decode(text) {
  const half = text[1] === '|' ? text[0] : '';
  const out = [];
  if (text !== '') for (const part of (half ? text.slice(2) : text).split(' ')) pushPart(out, part);
  if (!half) return out;
  const lower = out.map((v) => (half === '0' || v === 0 ? 0 : -v)).reverse();
  return [...lower, 0, ...out];
}

const decoded = new Map();
function list(n) {
  if (!decoded.has(n)) decoded.set(n, decode(data.lists[n]));
  return decoded.get(n);
}

// The curve of diameter d: stresses and displacements.
const curveOf = (k, d) => ({ s: list(k.c[2 * d]), x: list(k.c[2 * d + 1]) });

function column(profile, name) {
  return list(profile.columns.find((c) => c.name === name).v);
}
const isSand = (profile, l) => column(profile, 'PHIR')[l] > 1e-10;
const aboveScour = (profile, l) => column(profile, 'DEPTH')[l] <= 0;
const bottomOf = (profile, l) => column(profile, 'ZBOTM')[l];
const topOf = (profile, l) => (l > 0 ? column(profile, 'ZBOTM')[l - 1] : Math.min(profile.sea, bottomOf(profile, 0)));

// Names of the diameters: four digits where they tell them apart.
function diameterText(profile, d) {
  const short = profile.diameters.map(sig);
  return new Set(short).size === short.length ? short[d] : num(profile.diameters[d]);
}
const diameterName = (profile, d) => `D = ${diameterText(profile, d)}${unit('length')}`;

function extremes(values) {
  let low = Infinity, high = -Infinity;
  for (const v of values) {
    if (v === null) continue;
    if (v < low) low = v;
    if (v > high) high = v;
  }
  return [low, high];
}

// What is chosen, the bar, the address, the keys.

const state = { p: 0, l: 0, d: null, hidden: new Set(), range: 'working', several: null, window: 0, log: false, points: false, every: false };
const profileNow = () => data.profiles[state.p];
const shown = (d) => (state.d !== null ? d === state.d : !state.hidden.has(d));

function stateLine() {
  const profile = profileNow(), parts = [], log = data.log;
  const looks = profile.marked.filter((r) => r[2]).reduce((sum, r) => sum + r[4], 0);
  if (!log) parts.push('no run log beside the file');
  else parts.push(`<b class="${log.good ? 'good' : 'bad'}">${esc(log.ending || 'run log without an ending')}</b>`);
  parts.push(looks ? `<a href="#tables" id="looks" class="bad">${looks} curve${looks > 1 ? 's' : ''} to look at</a>` : 'no curve to look at');
  const value = (line) => (line || '').replace(/^[A-Z]+: */, '').replace(/ {2,}VERSION: */, ' ');
  parts.push(esc(value(data.date[1])), esc(value(data.date[0])), esc(data.file));
  if (log) parts.push(log.messages.length === 0 ? 'no warnings'
    : `<details class="messages"><summary>${log.messages.length} warning${log.messages.length > 1 ? 's' : ''}${log.good ? '' : ' and errors'}</summary><ul>${log.messages.map((m) => `<li>${esc(m)}</li>`).join('')}</ul></details>`);
  byId('state').innerHTML = parts.filter((part) => part.trim()).join('<span aria-hidden="true"> · </span>');
  byId('title').textContent = profile.label || data.file;
}

function options(count, text, chosen) {
  return Array.from({ length: count }, (_, i) => `<option value="${i}"${i === chosen ? ' selected' : ''}>${esc(text(i))}</option>`).join('');
}

function barHtml() {
  const profile = profileNow(), D = profile.diameters.length;
  const layerText = (l) => `${l + 1}: ${level(topOf(profile, l))} to ${level(bottomOf(profile, l))}${unit('length')}, ${isSand(profile, l) ? 'sand' : 'clay'}`;
  return (data.profiles.length > 1 ? `<label>Profile <select id="profile">${options(data.profiles.length, (p) => `${data.profiles[p].number}: ${data.profiles[p].name}`, state.p)}</select></label>` : '') +
    `<span class="step"><button type="button" id="previous" aria-label="Previous layer">◂</button><label>Layer <select id="layer">${options(profile.layers.length, layerText, state.l)}</select></label>` +
    '<button type="button" id="next" aria-label="Next layer">▸</button></span>' +
    `<label>Diameter <select id="diameter"><option value="">all ${D}</option>${options(D, (d) => diameterText(profile, d) + unit('length'), -1)}</select></label>` +
    `<label>Range <select id="range"><option value="working">working</option><option value="full">full</option><option value="log">logarithmic</option></select></label>` +
    '<span class="step"><label>Layers to print <input id="several" size="7" placeholder="3, 5-7"></label>' +
    '<button type="button" id="all">Show all layers</button><button type="button" id="print">Print</button></span>';
}

function legendHtml() {
  const profile = profileNow();
  return '<div class="diameters" role="group" aria-label="Diameters">' + profile.diameters.map((_, d) =>
    `<span class="entry"><button type="button" class="toggle" data-d="${d}" aria-pressed="${shown(d)}">${sample(d)}${esc(diameterName(profile, d))}</button>` +
    `<button type="button" class="alone" data-d="${d}" aria-label="${esc(diameterName(profile, d))} alone">alone</button></span>`).join('') +
    (profile.diameters.length > 1 ? '<button type="button" id="everyone">show all</button>' : '') + '</div>';
}

function pointsHtml() {
  const profile = profileNow();
  return `<details id="points"${state.points ? ' open' : ''}><summary>Points of these curves</summary>` + (!state.points ? '' :
    `<p><label><input type="checkbox" id="every"${state.every ? ' checked' : ''}> also the points that fill a curve out</label></p>` +
    profile.kinds.map((_, n) => pointTable(profile, state.l, n, shown, state.every)).join('')) + '</details>';
}

// The numbers of "3, 5-7", from 0; null for a text that is none.
function layersOf(text, count) {
  const out = new Set();
  for (const part of text.split(',')) {
    const match = /^\s*(\d+)(?:\s*-\s*(\d+))?\s*$/.exec(part);
    if (!match) return null;
    const last = Math.min(+(match[2] || match[1]), count);
    for (let n = Math.max(1, +match[1]); n <= last; ++n) out.add(n - 1);
  }
  return out.size ? [...out].sort((a, b) => a - b) : null;
}

function drawCurves() {
  const profile = profileNow(), curves = byId('curves');
  models = models.filter((m) => !m.title.includes(' points of layer '));
  document.body.classList.toggle('several', state.several !== null);
  if (state.several)
    curves.innerHTML = legendHtml() + state.several.map((l) => `<div class="one">${layerHtml(profile, l, state.range, shown, false)}</div>`).join('');
  else
    curves.innerHTML = legendHtml() + layerHtml(profile, state.l, state.range, shown, true) +
      '<p class="note" id="keys">The left and right arrow keys choose the layer; in a plot the arrow keys go along its curves.</p>' + pointsHtml();
  byId('all').textContent = state.several ? 'Show one layer' : 'Show all layers';
}

function drawHere() {
  const profile = profileNow();
  byId('chosen').innerHTML = chosenMark(profile, state.l);
  const y = linear(profile.depth.windows[state.window].y, depthBox[4], depthBox[1] - depthBox[5]);
  const top = y.at(topOf(profile, state.l)), end = y.at(Math.min(bottomOf(profile, state.l), y.high));
  document.querySelectorAll('#depths .here').forEach((band) => {
    band.setAttribute('y', px(top));
    band.setAttribute('height', px(top < end ? Math.max(end - top, 1.5) : 0));
  });
}

let depthsDrawn = false;
function drawDepths() {
  depthsDrawn = true;
  byId('depths').innerHTML = depthsHtml(profileNow(), state.window, state.log, shown);
  drawHere();
}

function address() {
  history.replaceState(null, '', `#p${profileNow().number}-l${state.l + 1}${state.d !== null ? `-d${state.d + 1}` : ''}`);
}

function syncBar() {
  byId('layer').value = state.l;
  byId('diameter').value = state.d === null ? '' : state.d;
  byId('range').value = state.range;
  byId('previous').disabled = state.l === 0;
  byId('next').disabled = state.l === profileNow().layers.length - 1;
}

function chooseLayer(l) {
  state.l = Math.min(Math.max(l, 0), profileNow().layers.length - 1);
  state.several = null;
  syncBar();
  drawCurves();
  drawHere();
  address();
}

function chooseDiameters() {
  syncBar();
  drawCurves();
  if (depthsDrawn) drawDepths();
  address();
}

function openProfile(p) {
  state.p = p;
  Object.assign(state, { d: null, hidden: new Set(), several: null, window: 0, l: profileNow().shown });
  models = [];
  stateLine();
  byId('bar').innerHTML = barHtml();
  byId('column').innerHTML = columnHtml(profileNow());
  byId('tables').innerHTML = tablesHtml(profileNow());
}

// "#p1-l9-d2", "#p1-l9", "#p1". True when it names something of the file.
function follow() {
  const parts = /^#p(\d+)(?:-l(\d+)(?:-d(\d+))?)?$/.exec(location.hash);
  const p = parts ? data.profiles.findIndex((q) => q.number === +parts[1]) : -1;
  if (p < 0) return false;
  if (p !== state.p) { openProfile(p); depthsDrawn = false; }
  const profile = profileNow();
  if (parts[2] && +parts[2] >= 1 && +parts[2] <= profile.layers.length) state.l = +parts[2] - 1;
  state.d = parts[3] && +parts[3] >= 1 && +parts[3] <= profile.diameters.length ? +parts[3] - 1 : null;
  state.several = null;
  return true;
}

function drawAll() {
  syncBar();
  drawCurves();
  drawHere();
  depthsDrawn = false;
  setTimeout(() => { if (!depthsDrawn) drawDepths(); }, 0);
}

const changes = {
  profile: (v) => { openProfile(+v); drawAll(); address(); byId('profile').focus(); },
  layer: (v) => chooseLayer(+v),
  diameter: (v) => { state.d = v === '' ? null : +v; state.hidden.clear(); chooseDiameters(); },
  range: (v) => { state.range = v; drawCurves(); },
  several: (v) => { state.several = layersOf(v, profileNow().layers.length); drawCurves(); },
  window: (v) => { state.window = +v; drawDepths(); byId('window').focus(); },
  log: () => { state.log = !state.log; drawDepths(); byId('log').focus(); },
  every: () => { state.every = !state.every; drawCurves(); byId('every').focus(); },
};
const clicks = {
  previous: () => chooseLayer(state.l - 1),
  next: () => chooseLayer(state.l + 1),
  all: () => {
    state.several = state.several ? null : profileNow().layers.map((_, l) => l);
    byId('several').value = '';
    drawCurves();
  },
  print: () => window.print(),
  everyone: () => { state.d = null; state.hidden.clear(); chooseDiameters(); },
  looks: () => {
    const fold = document.querySelector('[data-fold="0"]');
    fold.open = true;
    fillFold(profileNow(), fold);
    fold.scrollIntoView();
  },
};

function toggleDiameter(d, alone) {
  const all = profileNow().diameters.map((_, i) => i);
  if (alone) state.d = d;
  else {
    if (state.d !== null) state.hidden = new Set(all.filter((i) => i !== state.d));
    state.d = null;
    if (!state.hidden.delete(d)) state.hidden.add(d);
  }
  chooseDiameters();
  document.querySelector(`.${alone ? 'alone' : 'toggle'}[data-d="${d}"]`).focus();
}

document.addEventListener('change', (event) => { if (changes[event.target.id]) changes[event.target.id](event.target.value); });
document.addEventListener('click', (event) => {
  const target = event.target.closest('button, a, svg.soil, svg.over');
  if (!target) return;
  if (target.matches('.toggle, .alone')) toggleDiameter(+target.dataset.d, target.matches('.alone'));
  else if (target.matches('svg.soil, svg.over')) {
    const soil = target.matches('svg.soil'), profile = profileNow(), box = soil ? columnBox : depthBox;
    const axis = linear(profile.depth.windows[soil ? 0 : state.window].y, box[4], box[1] - box[5]);
    const l = layerAt(profile, axis, placeIn(event, target, box));
    if (l >= 0) chooseLayer(l);
  } else if (clicks[target.id]) {
    if (target.tagName === 'A') event.preventDefault();
    clicks[target.id]();
  }
});
document.addEventListener('toggle', (event) => {
  const details = event.target;
  if (details.dataset.fold) fillFold(profileNow(), details);
  if (details.id !== 'points' || details.open === state.points) return;
  state.points = details.open;
  drawCurves();
}, true);
document.addEventListener('pointermove', (event) => {
  if (!state.several) pointAt(event, profileNow(), state.l, state.range, shown);
  depthReadout(event, profileNow(), state.window, shown);
});
document.addEventListener('keydown', (event) => {
  if (event.ctrlKey || event.altKey || event.metaKey || /^(INPUT|SELECT|TEXTAREA)$/.test(event.target.tagName)) return;
  if (!state.several && pointKey(event, profileNow(), state.l, state.range, shown)) { event.preventDefault(); return; }
  if (event.target.closest && event.target.closest('.scroll')) return;
  if (event.key === 'ArrowLeft') chooseLayer(state.l - 1);
  else if (event.key === 'ArrowRight') chooseLayer(state.l + 1);
});
window.addEventListener('hashchange', () => { if (follow()) drawAll(); });
window.addEventListener('beforeprint', () => { if (!depthsDrawn && !state.several) drawDepths(); });

openProfile(0);
follow();
drawAll();

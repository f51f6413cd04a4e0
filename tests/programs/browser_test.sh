#!/bin/bash
# browser_test.sh TERVAK_REPORT MAKE_RIF: the page of a sample file of 60 layers and 3 diameters in a real browser.
# Exit status 77 when there is no chromium.
set -u
report=$1
make_rif=$2
browser=${CHROMIUM:-chromium}
command -v "$browser" >/dev/null || { echo "no $browser here"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

check() { # name, condition as words of test
  local name=$1
  shift
  if [ "$@" ]; then echo "ok      $name"; else echo "FAILED  $name: [ $* ]"; failures=$((failures + 1)); fi
}

# The page with a script of the test behind its own; what the script returns stands in the title.
dump() { # URL fragment, body of a function of the page, width of the window
  {
    sed 's#</body></html>##' "$work/page.html"
    echo "<script>addEventListener('load', () => setTimeout(() => { document.title = (() => { $2 })(); }, 0));
      const one = (s) => document.querySelector(s), every = (s) => [...document.querySelectorAll(s)];
      const key = (s, name) => one(s).dispatchEvent(new KeyboardEvent('keydown', { key: name, bubbles: true }));
      const choose = (id, v) => { byId(id).value = v; byId(id).dispatchEvent(new Event('change', { bubbles: true })); };</script>"
  } >"$work/probe.html"
  timeout 120 "$browser" --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync \
    --user-data-dir="$(mktemp -d -p "$work")" --window-size="${3:-1240}",1600 \
    --dump-dom "file://$work/probe.html#$1" 2>"$work/browser.log" | sed -n 's#.*<title>\(.*\)</title>.*#\1#p'
}

# Field $4 (from 1) of record $1 of diameter $2 and layer $3 as a plain number; with $5 to four digits.
field() {
  awk -v name="$1" -v d="$2" -v l="$3" -v wanted="$4" -v digits="${5:-9}" '
    substr($0, 1, 8) != "        " { on = substr($0, 1, 8) == name; n = 0 }
    on { for (c = 9; c < length($0); c += 16) v[++n] = substr($0, c, 16) + 0
         if (v[3] == d && v[4] == l && n >= wanted) { printf "%." digits "g", v[wanted]; exit } }' "$work/TERVAK.RIF"
}

"$make_rif" 60 3 >"$work/TERVAK.RIF" || exit 1
printf ' **** SR/READGE WARNING : A\r\n ERROR EXIT FROM TERVAK\r\n' >"$work/TERVAK.MLG"
"$report" --units kN,m -o "$work/page.html" "$work/TERVAK.RIF" >"$work/said" || exit 1
check "nothing from elsewhere" "$(grep -cE '(src|href)="?(https?:|//|file:)|@import|url\(' "$work/page.html")" = 0
check "the state of the run" \
  "$(dump '' "return one('#title').textContent + '; ' + one('#state').textContent.replace(/ ·.* · 1/, ' · 1')")" \
  = "Sample &amp; &lt;profile&gt; of \"tests\"; ERROR EXIT FROM TERVAK · 1 warning and errors**** SR/READGE WARNING : A"

check "the fragment chooses layer and diameter" \
  "$(dump p1-l40-d2 "return one('#curves h2').textContent + '; ' + byId('layer').value + byId('diameter').value +
       '; ' + every('.panel svg.plot .line').length + '; ' + every('[aria-pressed=true]').length")" \
  = "Layer 40 of 60; 391; 5; 1"
check "arrows, the column and the legend choose" \
  "$(dump p1-l40 "key('body', 'ArrowRight'); key('body', 'ArrowRight'); key('body', 'ArrowLeft');
     const soil = one('svg.soil'), area = soil.getBoundingClientRect(), before = location.hash;
     soil.dispatchEvent(new MouseEvent('click', { bubbles: true, clientX: area.left + 80,
       clientY: area.top + area.height * linear(data.profiles[0].depth.windows[0].y, 18, 548).at(6.2) / 560 }));
     one('.toggle[data-d=\"2\"]').click(); const two = every('.panel svg.plot .line').length;
     one('.alone[data-d=\"2\"]').click(); const alone = location.hash; byId('everyone').click();
     return [before, alone, two, every('.panel svg.plot .line').length, location.hash].join(' ')")" \
  = "#p1-l41 #p1-l7-d3 10 15 #p1-l7"
# T-Z of diameter 3, point 18: its stress is field 8 + 2 * 17 + 1 = 43, its displacement field 44. Points 1 to 9 and 21
# to 29 only fill the curve out.
row="every('#points table')[1].tBodies[0].rows"
check "the points before the filler, all of them, and the copy with all digits" \
  "$(dump p1-l41 "one('#points summary').click(); state.points = true; drawCurves();
     const few = $row; const cells = [...few].find((r) => r.cells[0].textContent === '18').cells;
     const out = [few.length, cells[5].textContent, cells[6].textContent, tableText(models[1]).split('\n')[9].split('\t').slice(5).join(' ')];
     choose('every', 'on'); return [...out, $row.length].join('; ')")" \
  = "11; $(field RVSOILTZ 3 41 44 4); $(field RVSOILTZ 3 41 43 4); $(field RVSOILTZ 3 41 44) $(field RVSOILTZ 3 41 43); 29"
at18="const scales = (range) => panelScales(profileNow(), profileNow().layers[40][1], profileNow().kinds[1], range);
  const box = every('.panel')[1], drawing = box.querySelector('svg.plot'), area = drawing.getBoundingClientRect();
  const [x, y] = scales('working').place(curveOf(profileNow().layers[40][1], 2), 17);
  drawing.dispatchEvent(new PointerEvent('pointermove', { bubbles: true, clientX: area.left + x * area.width / 400,
    clientY: area.top + y * area.width / 400 }));"
check "the pointer and the keys read the numbers of the file" \
  "$(dump p1-l41 "$at18 const read = box.querySelector('.readout').textContent; drawing.dispatchEvent(new KeyboardEvent('keydown', { key: 'ArrowLeft', bubbles: true }));
     return read + '; ' + byId('live').textContent.slice(0, 19)")" \
  = "D = 3 m, point 18: z = $(field RVSOILTZ 3 41 44 4) m, t = $(field RVSOILTZ 3 41 43 4) kN/m², t/peak = 1, z/D = 0.01; D = 3 m, point 17: "
check "ranges: the last point before the far one, all, decades" \
  "$(dump p1-l41 "const ends = ['working', 'full', 'log'].map((range) => { choose('range', range);
       return panelScales(profileNow(), profileNow().layers[40][0], profileNow().kinds[0], range).x.high; });
     return ends.map((v) => +v.toPrecision(3)).join(' ')")" = "1.32 3100 10000"
check "several layers, as named and all" \
  "$(dump '' "choose('several', '3, 5-7'); const some = every('.one h2').map((h) => h.textContent).join();
     byId('all').click(); byId('all').click(); return some + ' ' + every('.one h2').length")" \
  = "Layer 3 of 60,Layer 5 of 60,Layer 6 of 60,Layer 7 of 60 60"
check "depth plots: one line where all diameters are the same, steps, a choice of depth" \
  "$(dump '' "const tz = every('.depth')[3], lines = tz.querySelectorAll('.line').length, note = tz.querySelector('.note').textContent;
     const d = every('.depth')[2].querySelector('.line').getAttribute('d'); choose('window', '3'); choose('log', 'on');
     return [lines, note, /L/.test(d), every('.depth').length, byId('window').selectedOptions[0].textContent].join('; ')")" \
  = "2; The same for all diameters: the stresses are those of one pile.; false; 9; the upper 10 m"
check "no sideways scroll at 800 and 500, with all tables open" \
  "$(for w in 800 500; do dump '' "every('#tables summary').forEach((s) => s.click()); every('#tables details').forEach((d) => fillFold(profileNow(), d));
     return document.documentElement.scrollWidth - innerWidth > 0 ? 'wide' : every('table').length" $w; done | tr '\n' ' ')" = "11 11 "

times=$(for _ in 1 2 3 4 5; do
  dump '' "const t = performance.timing; return t.loadEventEnd - t.navigationStart"
done | sort -n | tr '\n' ' ')
echo "load times in ms: $times"
check "loads within a second" "$(echo "$times" | cut -d' ' -f3)" -lt 1000

# The picture as a page shows it: a text out of place would leave an empty frame.
"$report" --svg 41 --units kN,m -o "$work/picture.svg" "$work/TERVAK.RIF" || exit 1
echo '<title></title><body><img src="picture.svg"></body></html>' >"$work/page.html"
check "the picture of a layer" "$(dump '' "return document.images[0].naturalWidth")" = 900
exit $((failures > 0))

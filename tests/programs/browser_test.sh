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
dump() { # URL fragment, body of a function of the page
  {
    sed 's#</body></html>##' "$work/page.html"
    echo "<script>addEventListener('load', () => setTimeout(() => { document.title = (() => { $2 })(); }, 0))</script>"
  } >"$work/probe.html"
  timeout 120 "$browser" --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync \
    --user-data-dir="$(mktemp -d -p "$work")" --window-size=1240,1600 \
    --dump-dom "file://$work/probe.html#$1" 2>"$work/browser.log" | sed -n 's#.*<title>\(.*\)</title>.*#\1#p'
}

# Field $4 (from 1) of record $1 of diameter $2 and layer $3 as a plain number.
field() {
  awk -v name="$1" -v d="$2" -v l="$3" -v wanted="$4" '
    substr($0, 1, 8) != "        " { on = substr($0, 1, 8) == name; n = 0 }
    on { for (c = 9; c < length($0); c += 16) v[++n] = substr($0, c, 16) + 0
         if (v[3] == d && v[4] == l && n >= wanted) { printf "%.9g", v[wanted]; exit } }' "$work/TERVAK.RIF"
}

"$make_rif" 60 3 >"$work/TERVAK.RIF" || exit 1
"$report" --units kN,m -o "$work/page.html" "$work/TERVAK.RIF" || exit 1
check "nothing from elsewhere" "$(grep -cE '(src|href)="?(https?:|//|file:)|@import|url\(' "$work/page.html")" = 0

check "the fragment chooses a layer" \
  "$(dump p1-l40 "const top = document.querySelector('.curves').getBoundingClientRect().top;
     return document.querySelector('.layer h3').textContent + '; ' + document.querySelector('[aria-current]').textContent +
       (Math.abs(top) < 40 ? '; in view' : '; at ' + top)")" \
  = "Layer 40 of 60; 4039.5sand; in view"
check "a click chooses a layer, five kinds are drawn" \
  "$(dump '' "document.querySelectorAll('.layers a')[6].click();
     return document.querySelector('.layer h3').textContent + ' ' + document.querySelectorAll('.layer svg.plot path.line').length + ' ' + location.hash")" \
  = "Layer 7 of 60 15 #p1-l7"
# The static markup of the first layer and that of the script are one.
check "script and program draw alike" \
  "$(dump '' "const place = document.querySelector('.layer'), a = document.querySelectorAll('.layers a');
     const before = place.innerHTML; a[20].click(); const other = place.innerHTML; a[1].click();
     return (place.innerHTML === before) + ' ' + (other === before)")" \
  = "true false"
# T-Z of diameter 3, point 18: its stress is field 8 + 2 * 17 + 1 = 43, its displacement field 44.
row="document.querySelectorAll('.kind')[1].querySelector('table.points').tBodies[0].rows[17]"
check "the table has the numbers of the file" \
  "$(dump p1-l41 "return $row.cells[7].textContent + ' ' + $row.cells[8].textContent")" \
  = "$(field RVSOILTZ 3 41 44) $(field RVSOILTZ 3 41 43)"
check "the pointer reads the numbers of the file" \
  "$(dump p1-l41 "const box = document.querySelectorAll('.kind')[1], drawing = box.querySelector('svg.plot');
     const dots = box.querySelectorAll('path.dot')[5].getAttribute('d').split('M').slice(1);
     const at = dots[(dots.length - 1) / 2 + 3].split(/[ m]/), area = drawing.getBoundingClientRect();
     drawing.dispatchEvent(new PointerEvent('pointermove', { bubbles: true,
       clientX: area.left + at[0] * area.width / 470, clientY: area.top + at[1] * area.width / 470 }));
     return box.querySelector('.readout').textContent + '; row ' + box.querySelector('tr.at').cells[0].textContent")" \
  = "D = 3, point 18: displacement z = $(field RVSOILTZ 3 41 44), skin friction t = $(field RVSOILTZ 3 41 43); row 18"
check "all layers for printing" \
  "$(dump '' "document.querySelector('button').click(); return document.querySelectorAll('.layer h3').length")" = 60

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

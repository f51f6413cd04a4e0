#include "report/page.hpp"

namespace tervak::report {

const std::string_view page_style = R"css(
:root { color: #000; background: #fff; }
body { font: 14px/1.45 "Liberation Sans", Arial, Helvetica, sans-serif; max-width: 1280px; margin: 0 auto; padding: 20px; }
h1 { font-size: 22px; margin: 0 0 8px; }
h2 { font-size: 18px; margin: 36px 0 4px; padding-top: 8px; border-top: 2px solid #000; }
h3 { font-size: 15px; margin: 24px 0 6px; }
h4 { font-size: 13px; margin: 14px 0 2px; }
p { margin: 4px 0 8px; max-width: 60em; }
pre { font: 12px/1.35 "Liberation Mono", monospace; margin: 0 0 8px; }
a { color: inherit; }
table { border-collapse: collapse; font-size: 12px; line-height: 1.3; font-variant-numeric: tabular-nums; margin: 4px 0 10px; }
thead { border-top: 1.5px solid #000; border-bottom: 1px solid #000; }
tbody { border-bottom: 1.5px solid #000; }
th, td { padding: 1px 7px; text-align: right; font-weight: normal; white-space: nowrap; }
thead th { font-weight: bold; }
tbody tr:nth-child(5n) { border-bottom: 1px solid #ccc; }
table.general th, table.marked th, table.marked td, .text { text-align: left; }
table.marked td { white-space: normal; }
table.wide { font-size: 11px; }
table.wide th, table.wide td { padding: 1px 5px; }
table.points { font-size: 11px; }
table.points th, table.points td { padding: 0 4px; }
table.points thead th[colspan] { text-align: center; }
td.m { font-weight: bold; text-align: center; min-width: 1em; }
tr.at { outline: 1.5px solid #000; }
figure { margin: 0; }
figcaption { font-size: 12px; max-width: 470px; }
.depths { display: grid; grid-template-columns: repeat(3, 1fr); gap: 14px 24px; }
.curves { display: grid; grid-template-columns: 200px 1fr; gap: 24px; margin-top: 28px; padding-top: 4px; border-top: 1px solid #000; }
.curves.all { display: block; }
.layers { font-size: 12px; position: sticky; top: 8px; align-self: start; max-height: 95vh; overflow-y: auto; }
.layers ol { list-style: none; margin: 0; padding: 0; }
.layers a { display: grid; grid-template-columns: 1.8em 5.6em 2.6em 1fr; gap: 4px; padding: 1px 4px; text-decoration: none; border-left: 3px solid transparent; font-variant-numeric: tabular-nums; }
.layers a:hover { background: #eee; }
.layers a[aria-current] { border-left-color: #000; background: #ddd; }
.layers span:nth-child(-n+2) { text-align: right; overflow: hidden; text-overflow: ellipsis; }
.pair { display: flex; flex-wrap: wrap; gap: 16px; align-items: flex-start; }
.pair figure { flex: 0 0 440px; max-width: 100%; }
.tables { overflow-x: auto; max-width: 100%; }
.legend { font-size: 12px; margin: 0; }
.legend span { white-space: nowrap; margin-right: 10px; }
.readout { font-size: 12px; font-weight: bold; min-height: 1.4em; margin: 2px 0; }
ul.marks { font-size: 12px; margin: 4px 0; padding-left: 18px; max-width: 470px; }
button { font: inherit; font-size: 12px; margin: 6px 0; }
/* What is not on the screen is not laid out: long tables would else hold up the load. */
.curves { content-visibility: auto; contain-intrinsic-size: auto 1300px; }
svg.plot { width: 100%; height: auto; display: block; }
svg.sample { width: 44px; height: 10px; margin-right: 4px; }
svg .ring { stroke: #000; stroke-width: 1.6; fill: none; }
@media screen and (max-width: 900px) {
  .curves, .depths { display: block; }
  .layers { position: static; max-height: 16em; }
}
@page { size: A4; margin: 14mm; }
@media print {
  body { font-size: 10pt; max-width: none; padding: 0; }
  a { text-decoration: none; }
  .layers, .readout, button { display: none; }
  .curves { display: block; }
  .curves { content-visibility: visible; }
  .depths { grid-template-columns: repeat(2, 1fr); }
  .depth, .pair, tr { break-inside: avoid; }
  h2 { break-before: page; }
  section:first-of-type h2 { break-before: auto; }
  h3, h4 { break-after: avoid; }
  .curves h3 { break-before: page; }
  .pair { gap: 4mm; }
  .pair figure { flex: 0 0 88mm; }
  .tables { overflow: visible; max-width: 90mm; }
  table.wide, table.points { font-size: 6.6pt; }
  table.wide th, table.wide td { padding: 0 2.4pt; }
  table.points th, table.points td { padding: 0 1.6pt; }
  svg .band { fill: #ececec; print-color-adjust: exact; }
}
)css";

}  // namespace tervak::report

#include "explain/note_page.hpp"

#include <algorithm>

#include "explain/note_text.hpp"
#include "report/svg_plot.hpp"
#include "report/text.hpp"

namespace tervak::explain {

namespace {

using part = note_subject::part;
using report::escape_html;

constexpr report::plot_box BOX = {340, 230, 72, 10, 10, 40};

constexpr std::string_view STYLE = R"css(
body { font: 13px/1.4 "Liberation Sans", Arial, Helvetica, sans-serif; max-width: 1100px; margin: 0 auto; padding: 16px; }
h2 { font-size: 17px; border-top: 2px solid #000; padding-top: 6px; }
h3 { font-size: 14px; margin: 18px 0 4px; }
h4 { font-size: 13px; margin: 12px 0 2px; }
table { border-collapse: collapse; margin: 2px 0 8px; }
td { padding: 1px 8px 1px 0; vertical-align: top; border-bottom: 1px solid #ccc; }
td:first-child { white-space: nowrap; font-weight: bold; }
i { color: #444; }
pre { white-space: pre-wrap; }
svg.plot { width: 340px; display: block; }
section { content-visibility: auto; contain-intrinsic-size: auto 2000px; }
@page { size: A4; margin: 14mm; }
@media print { body { font-size: 9pt; padding: 0; } tr, figure { break-inside: avoid; } h2, h3, h4 { break-after: avoid; }
  section { content-visibility: visible; } }
)css";

/// The steps as a table: equation, branch, values.
std::string steps_table(const told_profile& profile, const told_subject* subject) {
  if (subject == nullptr || subject->steps.empty()) return "";
  std::string html = "<table>\n";
  for (const told_step& step : subject->steps) {
    html += "<tr><td>" + std::string(step.step->id) + "<td>" + escape_html(step.step->formula) + " <i>" +
            escape_html(step.step->source) + "</i><br>";
    if (!step.branch.empty()) html += "<b>" + escape_html(step.branch) + "</b>: ";
    html += escape_html(values_text(profile, step)) + "\n";
  }
  return html + "</table>\n";
}

/// The compression side of a curve as far as its shape goes: the far point that closes it is left out.
std::string picture(const told_profile& profile, const std::vector<curve_point>& curve, part family,
                    double D) {
  std::vector<std::pair<double, double>> points;
  double end = 0, peak = 0;
  for (std::size_t i = curve.size() / 2; i < curve.size(); ++i) {
    points.emplace_back(curve[i].displacement, curve[i].stress);
    if (curve[i].displacement < 5 * D) end = std::max(end, curve[i].displacement);
    peak = std::max(peak, curve[i].stress);
  }
  if (!(end > 0) || !(peak > 0)) return "";
  report::plot plot;
  plot.title = family_name(family) + " curve";
  plot.box = BOX;
  plot.x = report::make_axis(0, end, "displacement, " + unit_text(profile, in::length), BOX.across());
  plot.y = report::make_axis(0, peak, "stress, " + unit_text(profile, in::stress));
  plot.lines.push_back({0, report::clip_to(points, 0, end)});
  return "<figure>" + report::svg(plot) + "</figure>\n";
}

std::string curve_html(const told_profile& profile, const manual_places& places, part family, int NL, int ND,
                       const std::string& anchor) {
  const told_subject* subject = profile.find(family, NL, ND);
  if (subject == nullptr) return "";
  const double D = profile.diameters[static_cast<std::size_t>(ND) - 1];
  const std::string given = places.of(profile, family, NL, ND);
  std::string html = "<h4 id=\"" + anchor + "-d" + std::to_string(ND) + "-" + anchor_name(family) + "\">" +
                     family_name(family) + ", D " + number(D) + ": " +
                     escape_html(method_name(profile.layers[static_cast<std::size_t>(NL) - 1], family)) +
                     (given.empty() ? "" : ", given in the deck at " + given) + "</h4>\n";
  html += steps_table(profile, subject);
  const std::vector<curve_point>& curve = subject->finished.empty() ? subject->made : subject->finished;
  if (curve.empty()) return html;
  if (!subject->made.empty())
    html += "<p>As made: greatest stress " + peak_text(profile, subject->made) + ". ";
  if (!subject->finished.empty()) html += "Finished: " + peak_text(profile, subject->finished) + ".";
  return html + "\n" + picture(profile, curve, family, D);
}

std::string layer_html(const told_profile& profile, const choice& chosen, const manual_places& places,
                       int NL) {
  const told_layer& layer = profile.layers[static_cast<std::size_t>(NL) - 1];
  const std::string anchor = "p" + std::to_string(profile.number) + "-l" + std::to_string(NL);
  const std::string unit = unit_text(profile, in::length);
  std::string html = "<section id=\"" + anchor + "\">\n<h3>Layer " + std::to_string(NL) + ": " +
                     number(layer.top) + " to " + number(layer.bottom) + " " + unit + ", level " +
                     number(layer.level) + " " + unit + "</h3>\n";
  if (!chosen.family) html += steps_table(profile, profile.find(part::layer, NL, 0));
  const told_subject* axial = profile.find(part::axial, NL, 0);
  if (chosen.has(part::axial) && axial != nullptr)
    html += "<h4 id=\"" + anchor + "-axial\">Axial capacity</h4>\n" + steps_table(profile, axial);
  for (int ND = 1; ND <= static_cast<int>(profile.diameters.size()); ++ND)
    for (const part family : CURVES)
      if (chosen.has(family) && (chosen.diameter == 0 || chosen.diameter == ND))
        html += curve_html(profile, places, family, NL, ND, anchor);
  return html + "</section>\n";
}

}  // namespace

std::string note_page(const told_run& run, const choice& chosen, const manual_places& places,
                      const std::string& name) {
  std::string html =
      "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n<title>Calculation note, " +
      escape_html(name) + "</title>\n<style>" + std::string(STYLE) + std::string(report::plot_style) +
      "</style></head><body>\n<h1>Calculation note: " + escape_html(name) + "</h1>\n";
  for (const told_profile& profile : run.profiles) {
    if (chosen.profile > 0 && chosen.profile != profile.number) continue;
    html += "<h2 id=\"p" + std::to_string(profile.number) + "\">Profile " + std::to_string(profile.number) +
            ": " + escape_html(profile.heading) + "</h2>\n<p>" + units_line(profile) + "\n";
    if (!chosen.family) html += steps_table(profile, profile.find(part::layer, 0, 0));
    for (int NL = 1; NL <= static_cast<int>(profile.layers.size()); ++NL)
      if (chosen.layer == 0 || chosen.layer == NL) html += layer_html(profile, chosen, places, NL);
  }
  if (!run.whole) html += "<h2 id=\"stop\">Stop</h2>\n<pre>" + escape_html(stop_text(run)) + "</pre>\n";
  return html + "</body></html>\n";
}

}  // namespace tervak::explain

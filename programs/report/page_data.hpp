#pragma once

#include <optional>
#include <string>

#include "report/deck_beside.hpp"
#include "report/rif_data.hpp"
#include "report/run_log.hpp"
#include "report/svg_plot.hpp"
#include "report/units.hpp"
#include "report/value_lists.hpp"

namespace tervak::report {

/// What the page shows besides the content of the interface file.
struct page_facts {
  std::string file_name;  // without its folder
  units u = {};
  std::optional<run_log> log = {};
  deck_beside deck = {};
};

/// What the page's script draws from, as JSON. Ticks, styles, marks and their words come from here; the
/// script puts them where they belong. A number that stands for a list is its place in `lists`.
///   file, units (named, length, stress, weight, force)
///   log        ending, good, messages[]; null without a run log
///   no_deck    why the deck beside the file is not used
///   date[]     the four lines of the file's date record
///   boxes      curve, depth: width, height and margins of a plot
///   styles[]   by diameter: colour, dash, marker path, fill
///   marks[]    by number: letter, name, meaning
///   lists[]    see value_lists.hpp
///   profiles[] see profile_json in page_data.cpp
std::string page_data(const interface_file& file, const page_facts& facts);

/// Low, high and the list of the ticks.
std::string axis_json(const axis& a, value_lists& lists);

}  // namespace tervak::report

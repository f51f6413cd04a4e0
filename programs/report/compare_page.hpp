#pragma once

#include <string>

#include "report/compare.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// An HTML page, complete in itself, of what comparison_text says, and of the curves that differ, both in one
/// panel. Where there are very many it holds the largest changes and says what it leaves out.
std::string compare_page(const interface_file& before, const interface_file& after, const comparison& c,
                         const std::string& names, const units& u);

}  // namespace tervak::report

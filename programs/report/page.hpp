#pragma once

#include <string>
#include <string_view>

#include "report/rif_data.hpp"
#include "report/units.hpp"

namespace tervak::report {

/// The whole page: no part of it comes from elsewhere. `file_name`, without its folder, is shown in its
/// heading.
std::string page(const interface_file& file, const std::string& file_name, const units& u);

/// Style sheet and script of the page.
extern const std::string_view page_style;
extern const std::string_view page_script;

}  // namespace tervak::report

#pragma once

#include <string>
#include <string_view>

#include "report/page_data.hpp"
#include "report/rif_data.hpp"

namespace tervak::report {

/// The whole page: no part of it comes from elsewhere.
std::string page(const interface_file& file, const page_facts& facts);

/// Style sheet and script of the page: the files of page/ one after the other.
extern const std::string_view page_style;
extern const std::string_view page_script;

}  // namespace tervak::report

#pragma once

#include <string>
#include <string_view>

namespace tervak::companion {

/// Where the bytes of a run's file first differ from those that the same run makes again, stamps and machine
/// names apart: "is cut off: it ends after 5 of 7 bytes", "line 3, column 9: found "x", expected "y"". Empty
/// where they are the same.
std::string difference(std::string_view file_name, std::string_view found, std::string_view expected);

/// At most 40 bytes of a text as they are shown to the user: in quotes, control bytes as \xNN.
std::string excerpt(std::string_view text);

}  // namespace tervak::companion

add_library(tervak_warnings INTERFACE)
target_compile_options(tervak_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast)
if(TERVAK_WARNINGS_AS_ERRORS)
  target_compile_options(tervak_warnings INTERFACE -Werror)
endif()

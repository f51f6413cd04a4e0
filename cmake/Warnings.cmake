add_library(tervak_warnings INTERFACE)
target_compile_options(tervak_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Wold-style-cast
  $<$<NOT:$<BOOL:${CMAKE_UNITY_BUILD}>>:-Wshadow>)  # joined sources shadow the names of one another
if(TERVAK_WARNINGS_AS_ERRORS)
  target_compile_options(tervak_warnings INTERFACE -Werror)
endif()

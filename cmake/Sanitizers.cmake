add_library(tervak_sanitizers INTERFACE)
if(TERVAK_FUZZ)
  target_compile_options(tervak_sanitizers INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(TERVAK_SANITIZE)
  target_compile_options(tervak_sanitizers INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tervak_sanitizers INTERFACE -fsanitize=address,undefined)
endif()

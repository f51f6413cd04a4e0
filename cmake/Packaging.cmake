# What is installed, and the Debian package of it. scripts/package-check holds the list of all installed files against this.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(tervak_executable ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})

install(TARGETS tervak tervak-report tervak-check tervak-run tervak-explain RUNTIME)

# Manual pages, without a time stamp in them.
find_program(GZIP_EXECUTABLE gzip REQUIRED)
mark_as_advanced(GZIP_EXECUTABLE)
set(pages "")
foreach(name tervak tervak-run tervak-report tervak-check tervak-explain)
  set(page ${PROJECT_BINARY_DIR}/man/${name}.1.gz)
  add_custom_command(OUTPUT ${page} DEPENDS man/${name}.1 VERBATIM
    COMMAND ${GZIP_EXECUTABLE} -9nc ${PROJECT_SOURCE_DIR}/man/${name}.1 > ${page})
  list(APPEND pages ${page})
endforeach()
# The change log in Debian's form.
set(changelog ${PROJECT_BINARY_DIR}/man/changelog.gz)
add_custom_command(OUTPUT ${changelog} DEPENDS cmake/debian/changelog VERBATIM
  COMMAND ${GZIP_EXECUTABLE} -9nc ${PROJECT_SOURCE_DIR}/cmake/debian/changelog > ${changelog})
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/man)
add_custom_target(man ALL DEPENDS ${pages} ${changelog})
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The documents are to one another as in the repository, so that their links hold.
install(FILES README.md CHANGELOG.md ${changelog} DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")
install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples
  PATTERN "run-field" PERMISSIONS ${tervak_executable}
  PATTERN "field.slurm" PERMISSIONS ${tervak_executable})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tervak)
set(CPACK_PACKAGE_CONTACT "TERVAK developers <tervak@example.invalid>")
set(CPACK_PACKAGE_DESCRIPTION "TERVAK makes the lateral (P-Y), skin (T-Z) and tip (Q-Z) resistance curves of
offshore pile foundations from a description of the soil, by API, ISO, ICP,
NGI and other published methods, and writes them for KESTRA and USFOS.
tervak-run runs one deck in a directory of its own, tervak-check says what is
wrong with a deck or a run and where, tervak-report shows the results as a web
page, tervak-explain shows how each curve was made.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS parallel)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Which versions of the C and C++ libraries are needed is read from the programs; without the tool for that the package
# can only name the libraries.
find_program(DPKG_SHLIBDEPS_EXECUTABLE dpkg-shlibdeps)
mark_as_advanced(DPKG_SHLIBDEPS_EXECUTABLE)
if(DPKG_SHLIBDEPS_EXECUTABLE)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6, libgcc-s1, libstdc++6")
endif()
include(CPack)

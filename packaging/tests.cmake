# What ./test runs, as one list for ctest: the tests of every build in the folder build, and the
# checks of the sources.
get_filename_component(root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
subdirs(${root}/build/debug ${root}/build/asan+ubsan)

add_test(Sources.AreLaidOutByClangFormat ${root}/packaging/check_format)
add_test(Sources.PassClangTidy ${root}/packaging/check_tidy ${root}/build/debug)
set_tests_properties(Sources.PassClangTidy PROPERTIES PROCESSORS 2 TIMEOUT 3000)

# What ./test runs, as one list for ctest: the tests of the plain build, those of them that need
# no real window once more under sanitizers, and the checks of the sources.
get_filename_component(root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
subdirs(${root}/build/debug)

# What computes lets those go first that watch real time.
set(modestly nice -n 10)
add_test(Sanitizers.FindNothingInTheTests ${modestly} ctest --test-dir
    ${root}/build/asan+ubsan --label-exclude e2e --parallel 2 --output-on-failure)
add_test(Sources.AreLaidOutByClangFormat ${root}/packaging/check_format)
add_test(Sources.IncludeOnlyDownwards ${root}/packaging/check_floors)
add_test(Sources.EveryWayUpIsFound python3 -B ${root}/tests/packaging/test_check_floors.py)
add_test(Packaging.LinksLeadToWhatIsMade python3 -B ${root}/tests/packaging/test_link_art.py)
add_test(Sources.PassClangTidy
    ${modestly} ${root}/packaging/check_tidy ${root}/build/debug ${root}/build/art)
set_tests_properties(Sanitizers.FindNothingInTheTests Sources.PassClangTidy
    PROPERTIES PROCESSORS 2 TIMEOUT 3000 COST 1000)

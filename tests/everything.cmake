# What ./test runs, as one list for ctest: all tests of the players' build, those that need no real
# window once more under sanitizers, a few seconds of each fuzzer, and the checks of the sources.
get_filename_component(root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
subdirs(${root}/build/release+tests ${root}/build/asan+ubsan ${root}/build/fuzz)

add_test(Sources.AreLaidOutByClangFormat ${root}/checks/check_format)
add_test(Sources.IncludeOnlyDownwards ${root}/checks/check_floors)
add_test(Sources.EveryWayUpIsFound python3 -B ${root}/tests/checks/test_check_floors.py)
add_test(Packaging.LinksLeadToWhatIsMade python3 -B ${root}/tests/packaging/test_link_art.py)
add_test(Packaging.WhatIsInstalledIsWholeAndMayBeMoved
    python3 -B ${root}/tests/packaging/test_install.py)
add_test(Packaging.TheCommandLineIsCompleted
    python3 -B ${root}/tests/packaging/test_completion.py)
add_test(Packaging.WhatDescribesTheDebianPackagesAgrees
    python3 -B ${root}/tests/packaging/test_debian.py)
add_test(Packaging.TheManifestForFlatpakOpensLittle
    python3 -B ${root}/tests/packaging/test_flatpak.py)
add_test(Packaging.TheRulesAreWholeAndNeedNoNetwork
    python3 -B ${root}/tests/packaging/test_rules.py)
add_test(Sources.WhatHasPassedIsNotRunAgain
    python3 -B ${root}/tests/checks/test_unless_passed.py)
# What computes lets those go first that watch real time.
add_test(Sources.PassClangTidy nice -n 10
    ${root}/checks/check_tidy ${root}/build/release+tests ${root}/build/fuzz ${root}/build/art)
set_tests_properties(Sources.PassClangTidy PROPERTIES PROCESSORS 2 TIMEOUT 3000 COST 1000)

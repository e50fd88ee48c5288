# Properties of the build and of the sources that no test program can see from inside.

set(scripts "${CMAKE_SOURCE_DIR}/scripts")

add_test(NAME "includes follow the arrows" COMMAND "${scripts}/check-includes.sh")
add_test(NAME "a forbidden include is found" COMMAND "${scripts}/test-check-includes.sh")
add_test(NAME "the contract says who calls what and when" COMMAND "${scripts}/check-contract-tags.sh")
add_test(NAME "a missing contract tag is found" COMMAND "${scripts}/test-check-contract-tags.sh")
add_test(NAME "no name is defined twice" COMMAND "${scripts}/check-names.py")
add_test(NAME "a name that is defined twice is found" COMMAND "${scripts}/test-check-names.sh")

if(TARGET algo_order_entry)
  add_test(NAME "the module exports one symbol"
    COMMAND "${scripts}/check-module-exports.sh" "${CMAKE_NM}" $<TARGET_FILE:algo_order_entry>)
endif()

# Qt Test belongs to the program that plays scripts.
add_test(NAME "the desktop is linked without Qt Test" COMMAND ldd $<TARGET_FILE:algo-desk>)
set_tests_properties("the desktop is linked without Qt Test" PROPERTIES FAIL_REGULAR_EXPRESSION "Qt6Test")

# Whole stories: every file below scenarios/ is one test whose name is the sentence that the file name spells.

algo_program(algo-scenario scenario_runner.cpp nlohmann_json::nlohmann_json)

if(TARGET algo-scenario AND TARGET algo-drive)
  set(root "${CMAKE_CURRENT_SOURCE_DIR}/scenarios")
  file(GLOB_RECURSE scenarios CONFIGURE_DEPENDS RELATIVE "${root}" "${root}/*.jsonl")
  # What several stories begin with is included by them and is no story itself.
  list(FILTER scenarios EXCLUDE REGEX "^common/")
  foreach(scenario IN LISTS scenarios)
    string(REGEX REPLACE "\\.jsonl$" "" sentence "${scenario}")
    string(REPLACE "-" " " sentence "${sentence}")
    string(REPLACE "/" ": " sentence "${sentence}")
    add_test(NAME "${sentence}" COMMAND algo-scenario $<TARGET_FILE:algo-drive> "${root}/${scenario}")
    set_tests_properties("${sentence}" PROPERTIES LABELS scenario TIMEOUT 120)
  endforeach()
endif()

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
    if(TARGET algo-widget-drive)
      # Played with keys and mouse at real widgets, the same story has to give the same answers line by line.
      add_test(NAME "at widgets: ${sentence}" COMMAND algo-scenario $<TARGET_FILE:algo-drive> "${root}/${scenario}"
        $<TARGET_FILE:algo-widget-drive>)
      set_tests_properties("at widgets: ${sentence}" PROPERTIES LABELS widgets TIMEOUT 120
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=*=false")
    endif()
  endforeach()
  if(TARGET algo-widget-drive)
    add_test(NAME "at widgets: the trading day" COMMAND algo-scenario $<TARGET_FILE:algo-drive>
      "${CMAKE_SOURCE_DIR}/examples/trading-day.jsonl" $<TARGET_FILE:algo-widget-drive>)
    set_tests_properties("at widgets: the trading day" PROPERTIES LABELS widgets TIMEOUT 120
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=*=false")
  endif()
endif()

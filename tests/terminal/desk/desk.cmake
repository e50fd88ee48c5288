# The desktop as a real window on a virtual screen.

add_test(NAME "the desk takes an order by keys alone"
  COMMAND "${CMAKE_CURRENT_LIST_DIR}/by_keys.sh" $<TARGET_FILE:algo-desk> "${CMAKE_SOURCE_DIR}/examples/market")
# Keys go to whoever has the focus in time; nothing else should keep the machine busy.
set_tests_properties("the desk takes an order by keys alone" PROPERTIES LABELS desk TIMEOUT 180 RUN_SERIAL ON)

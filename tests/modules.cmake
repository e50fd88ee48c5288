# Modules that tests load.

add_library(test_other_contract MODULE other_contract_module.cpp)
target_link_libraries(test_other_contract PRIVATE algo_host_contract algo_flags)
if(TARGET test_desk)
  add_dependencies(test_desk test_other_contract)
endif()

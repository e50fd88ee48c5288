# The program that the tests of the storage start and kill.

algo_program(algo-killed-writer terminal/storage_killed_writer.cpp algo_terminal_storage)
add_dependencies(test_storage algo-killed-writer)

# The program that the tests of the storage start and kill.

algo_program(algo-killed-writer terminal/storage/killed_writer_program.cpp algo_terminal_storage)
add_dependencies(test_storage algo-killed-writer)

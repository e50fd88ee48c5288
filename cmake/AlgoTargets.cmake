# One library per folder: each folder's CMakeLists.txt names its target and what it may point to, no source file.

# algo_library(<name> <STATIC|SHARED|OBJECT> [HIDDEN] [EXCEPT <file>...] [PUBLIC <target>...] [PRIVATE <target>...])
#
# Makes the library of the current folder out of its *.cpp files, leaving out those named after EXCEPT.
# A folder of headers alone becomes an INTERFACE library, so that its users link it all the same.
# HIDDEN keeps its symbols out of the shared library or module that it ends up in.
function(algo_library name kind)
  cmake_parse_arguments(PARSE_ARGV 2 arg "HIDDEN" "" "EXCEPT;PUBLIC;PRIVATE")
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  foreach(file IN LISTS arg_EXCEPT)
    list(REMOVE_ITEM sources "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
  endforeach()
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${arg_PUBLIC} ${arg_PRIVATE})
    return()
  endif()
  add_library(${name} ${kind} ${sources})
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} algo_flags)
  if(arg_HIDDEN)
    set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  endif()
  if(kind STREQUAL "SHARED")
    algo_link_complete(${name})
    # What a static library lends to a shared one is not the shared one's to offer.
    target_link_options(${name} PRIVATE LINKER:--exclude-libs,ALL)
  endif()
endfunction()

# algo_link_complete(<target>)
#
# Lets the linker refuse undefined symbols in a shared library, so that they show at the build and not at
# the load. A sanitizer's run-time part comes with the program under clang, so there it cannot be asked for.
function(algo_link_complete target)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" OR NOT (ALGO_SANITIZE OR ALGO_FUZZ))
    target_link_options(${target} PRIVATE LINKER:--no-undefined)
  endif()
endfunction()

# algo_program(<name> <source> [<target>...])
#
# Makes a program out of one source file of the current folder, where that file is there.
function(algo_program name source)
  file(GLOB found CONFIGURE_DEPENDS ${source})
  if(found)
    add_executable(${name} ${found})
    target_link_libraries(${name} PRIVATE ${ARGN} algo_flags)
  endif()
endfunction()

# algo_uses_module(<target>)
#
# Builds the module before the target, which loads it at run time and so does not link it.
function(algo_uses_module target)
  if(TARGET ${target} AND TARGET algo_order_entry)
    add_dependencies(${target} algo_order_entry)
  endif()
endfunction()

# algo_compiles_alone(<target>...)
#
# Compiles each source of the targets by itself where the others are compiled several at a time (the sanitizers' build,
# which nobody edits in): their files use the same short names, each for its own.
function(algo_compiles_alone)
  set_target_properties(${ARGN} PROPERTIES UNITY_BUILD OFF)
endfunction()

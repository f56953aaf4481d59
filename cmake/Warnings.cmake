# One interface target that every target of the project links: language level, definitions, warnings.
add_library(project_options INTERFACE)
target_include_directories(project_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(project_options INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(project_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor> $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual> -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # False alarms of g++ 12 on std::optional, QString and std::string in optimised code.
  target_compile_options(project_options INTERFACE -Wno-maybe-uninitialized -Wno-restrict)
endif()
if(LABELPRINT_SANITIZE)
  target_compile_options(project_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(project_options INTERFACE -fsanitize=address,undefined)
endif()
if(LABELPRINT_FUZZ)
  # The counters that guide a fuzzer, in everything that is built; its main() in the fuzzers alone.
  set(fuzz_options -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined)
  target_compile_options(project_options INTERFACE ${fuzz_options} -fno-omit-frame-pointer)
  target_link_options(project_options INTERFACE ${fuzz_options})
endif()
if(LABELPRINT_COVERAGE)
  target_compile_options(project_options INTERFACE --coverage)
  target_link_options(project_options INTERFACE --coverage)
endif()

# The PPD calls of libcups warn as deprecated; only the sources named here may use them.
function(allow_ppd_calls)
  set_property(SOURCE ${ARGN} APPEND PROPERTY COMPILE_OPTIONS -Wno-deprecated-declarations)
endfunction()

# SPDX-License-Identifier: Apache-2.0
cmake_minimum_required(VERSION 3.25)
# cmake -DROOT=folder -P CheckWords.cmake
# The tree speaks of the program, not of how it came about, and holds no unfinished places or tests that
# are switched off. Each pattern has a bracket, so that this file does not find itself.

set(words_everywhere
  "[Ss]pecificatio[n]" "spec[.]m[d]" "[Pp]art [1-6][.][0-9]" "[Ss]ub-?agen[t]" "[Hh]elper sessio[n]"
  "[.][.]/share[d]" "/wor[k]/" "/far[m]/" "T[O]DO" "FIXM[E]")
set(words_in_tests "GTEST_SKI[P]" "DISABLE[D]_" "QSKI[P]" "EXPECT_TRUE[(]tru[e][)]" "SUCCEE[D][(]")

file(GLOB_RECURSE files RELATIVE "${ROOT}" "${ROOT}/*")
list(FILTER files EXCLUDE REGEX "^(build|out|[.]git)/|^[.]git$|[.](png|pdf|tiff?|jpe?g|qm)$|^LICENSE$")
set(complaints "")
set(count 0)
foreach(file ${files})
  math(EXPR count "${count} + 1")
  set(words ${words_everywhere})
  if(file MATCHES "^(tests|fuzz)/")
    list(APPEND words ${words_in_tests})
  endif()
  list(JOIN words "|" pattern)
  file(STRINGS "${ROOT}/${file}" lines REGEX "${pattern}")
  foreach(line ${lines})
    string(APPEND complaints "  ${file}: ${line}\n")
  endforeach()
endforeach()

if(count EQUAL 0)
  message(FATAL_ERROR "No files found in ${ROOT}")
endif()
if(complaints)
  message(FATAL_ERROR "Words that do not belong in the tree:\n${complaints}")
endif()
message(STATUS "${count} files checked")

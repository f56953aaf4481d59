# SPDX-License-Identifier: Apache-2.0
cmake_minimum_required(VERSION 3.25)
# cmake -DROOT=folder -P CheckIncludes.cmake
# Which folder may include which. Fails with one line for each include that goes against the table.

set(allowed_platform "platform/")
set(allowed_ppd "ppd/" "platform/")
set(allowed_preview "preview/" "platform/" "imaging/")
set(allowed_plugin "plugin/" "ppd/" "platform/")
set(allowed_graphics_panel
  "graphics_panel/" "plugin/" "ppd/" "preview/" "controls/" "platform/")
set(allowed_controls "controls/" "ppd/" "platform/")
set(allowed_diagnostics "diagnostics/" "platform/")
set(allowed_loading "loading/" "plugin/PrintDialogExtension[.]h" "platform/")
set(allowed_dialog "dialog/" "loading/" "plugin/PrintDialogExtension[.]h" "platform/" "imaging/")
# The two headers of ppd/ declare functions that the bundle exports.
set(allowed_tools
  "tools/" "loading/" "plugin/PrintDialogExtension[.]h" "plugin/PanelInspection[.]h"
  "plugin/FormatterInspection[.]h" "platform/" "ppd/ExtendedTicket[.]h" "ppd/TapeInfo[.]h")
set(allowed_imaging "imaging/")
set(allowed_filter "filter/" "imaging/")
set(allowed_barcodes "barcodes/")

# Libraries that stay in their folders.
set(libraries "cups/" "plist/" "unicode/" "ZXing/" "QUiLoader" "QPdf" "Q")
set(folders_of_cups/ plugin ppd graphics_panel diagnostics dialog tools filter)
set(folders_of_plist/ ppd dialog)
set(folders_of_unicode/ platform)
set(folders_of_ZXing/ barcodes)
set(folders_of_QUiLoader platform)
set(folders_of_QPdf dialog)
set(folders_of_Q platform ppd preview plugin graphics_panel controls diagnostics loading dialog
  tools)

set(complaints "")

function(check_own folder file header)
  if(header MATCHES "[.]moc$")
    return()
  endif()
  set(rules ${allowed_${folder}})
  # The principal class is the one place of plugin/ that looks upwards.
  if(file MATCHES "^plugin/CVVLGraphics17PlugIn[.](h|cpp)$")
    list(APPEND rules "graphics_panel/")
  endif()
  foreach(rule ${rules})
    if(header MATCHES "^${rule}" AND NOT header MATCHES "[.][.]/")
      return()
    endif()
  endforeach()
  set(complaints "${complaints}  ${file} must not include \"${header}\"\n" PARENT_SCOPE)
endfunction()

function(check_library folder file header)
  foreach(library ${libraries})
    if(header MATCHES "^${library}")
      if(NOT folder IN_LIST "folders_of_${library}")
        set(complaints "${complaints}  ${file} must not include <${header}>\n" PARENT_SCOPE)
      endif()
      return()
    endif()
  endforeach()
endfunction()

set(count 0)
foreach(folder
    platform ppd preview plugin graphics_panel controls diagnostics loading dialog tools imaging filter
    barcodes)
  file(GLOB_RECURSE files RELATIVE "${ROOT}" "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.cpp")
  foreach(file ${files})
    math(EXPR count "${count} + 1")
    file(STRINGS "${ROOT}/${file}" lines REGEX "^ *# *include")
    foreach(line ${lines})
      if(line MATCHES "include *\"([^\"]+)\"")
        check_own(${folder} "${file}" "${CMAKE_MATCH_1}")
      elseif(line MATCHES "include *<([^>]+)>")
        check_library(${folder} "${file}" "${CMAKE_MATCH_1}")
      endif()
    endforeach()
  endforeach()
endforeach()

if(count EQUAL 0)
  message(FATAL_ERROR "No sources found in ${ROOT}")
endif()
if(complaints)
  message(FATAL_ERROR "Includes against the table of folders:\n${complaints}")
endif()
message(STATUS "${count} files keep to the table of folders")

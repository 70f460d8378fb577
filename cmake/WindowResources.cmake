# SPDX-License-Identifier: GPL-3.0-or-later
# quorvane_window_resources(TARGET)
#
# Embeds resources/cursors/*.svg as :/cursors/NAME.svg and resources/actions/*.svg as :/actions/NAME.svg. They stay
# vectors: the program draws them at the density of the screen and in the colours of its palette. The program's own
# icon is embedded as :/application/SIZE.png, for where the desktop's theme has it not, and the text of the licence as
# :/licence.txt.
function(quorvane_window_resources target)
  set(output ${CMAKE_BINARY_DIR}/window-resources)
  set(files)
  set(entries)
  foreach(folder cursors actions)
    file(GLOB pictures CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/${folder}/*.svg)
    foreach(picture IN LISTS pictures)
      get_filename_component(name ${picture} NAME)
      list(APPEND files ${picture})
      string(APPEND entries "<file alias=\"${folder}/${name}\">${picture}</file>\n")
    endforeach()
  endforeach()
  list(APPEND files ${CMAKE_SOURCE_DIR}/LICENSE)
  string(APPEND entries "<file alias=\"licence.txt\">${CMAKE_SOURCE_DIR}/LICENSE</file>\n")
  foreach(size 16 32 48 128)
    set(source ${CMAKE_SOURCE_DIR}/resources/icons/quorvane-${size}.svg)
    if(NOT EXISTS ${source})
      set(source ${CMAKE_SOURCE_DIR}/resources/icons/quorvane.svg)
    endif()
    set(picture ${output}/application-${size}.png)
    add_custom_command(OUTPUT ${picture}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${output}
      COMMAND quorvane_svg2png ${source} ${size} ${size} ${picture}
      DEPENDS quorvane_svg2png ${source}
      COMMENT "Rendering the window's icon at ${size} pixels" VERBATIM)
    list(APPEND files ${picture})
    string(APPEND entries "<file alias=\"application/${size}.png\">${picture}</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${output}/window.qrc CONTENT
    "<RCC><qresource prefix=\"/\">\n${entries}</qresource></RCC>\n" @ONLY)
  add_custom_command(OUTPUT ${output}/window.cpp
    COMMAND Qt6::rcc --name window --no-compress --output ${output}/window.cpp ${output}/window.qrc
    DEPENDS ${files} ${output}/window.qrc VERBATIM)
  target_sources(${target} PRIVATE ${output}/window.cpp)
  # Generated code is not held to our warnings.
  set_source_files_properties(${output}/window.cpp PROPERTIES COMPILE_OPTIONS "-w" SKIP_AUTOMOC ON)
endfunction()

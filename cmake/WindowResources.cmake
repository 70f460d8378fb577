# SPDX-License-Identifier: GPL-3.0-or-later
# quorvane_window_resources(TARGET)
#
# Embeds resources/cursors/*.svg as :/cursors/NAME.svg and resources/actions/*.svg as :/actions/NAME.svg. They stay
# vectors: the program draws them at the density of the screen and in the colours of its palette.
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
  file(CONFIGURE OUTPUT ${output}/window.qrc CONTENT
    "<RCC><qresource prefix=\"/\">\n${entries}</qresource></RCC>\n" @ONLY)
  add_custom_command(OUTPUT ${output}/window.cpp
    COMMAND Qt6::rcc --name window --no-compress --output ${output}/window.cpp ${output}/window.qrc
    DEPENDS ${files} ${output}/window.qrc VERBATIM)
  target_sources(${target} PRIVATE ${output}/window.cpp)
  # Generated code is not held to our warnings.
  set_source_files_properties(${output}/window.cpp PROPERTIES COMPILE_OPTIONS "-w" SKIP_AUTOMOC ON)
endfunction()

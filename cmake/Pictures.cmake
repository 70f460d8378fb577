# SPDX-License-Identifier: GPL-3.0-or-later
# quorvane_picture_resources(TARGET)
#
# Renders resources/pictures/*.svg to PNG files and embeds them as :/pictures/NAME-PIXELS.png. NAME-16.svg and
# NAME-32.svg, where they are, serve their own size; NAME.svg all others.
function(quorvane_picture_resources target)
  set(pictures folder folder-open document application harddisk trash)
  set(sizes 16 32 48 64 128 256 512)
  set(source_folder ${CMAKE_SOURCE_DIR}/resources/pictures)
  set(output_folder ${CMAKE_BINARY_DIR}/pictures)
  file(MAKE_DIRECTORY ${output_folder})
  set(rendered)
  set(entries)
  foreach(picture IN LISTS pictures)
    foreach(size IN LISTS sizes)
      set(source ${source_folder}/${picture}.svg)
      if(EXISTS ${source_folder}/${picture}-${size}.svg)
        set(source ${source_folder}/${picture}-${size}.svg)
      endif()
      set(output ${output_folder}/${picture}-${size}.png)
      add_custom_command(OUTPUT ${output}
        COMMAND quorvane_svg2png ${source} ${size} ${size} ${output}
        DEPENDS quorvane_svg2png ${source}
        COMMENT "Rendering ${picture} at ${size} pixels" VERBATIM)
      list(APPEND rendered ${output})
      string(APPEND entries "<file alias=\"${picture}-${size}.png\">${output}</file>\n")
    endforeach()
  endforeach()
  file(CONFIGURE OUTPUT ${output_folder}/pictures.qrc CONTENT
    "<RCC><qresource prefix=\"/pictures\">\n${entries}</qresource></RCC>\n" @ONLY)
  add_custom_command(OUTPUT ${output_folder}/pictures.cpp
    COMMAND Qt6::rcc --name pictures --no-compress --output ${output_folder}/pictures.cpp ${output_folder}/pictures.qrc
    DEPENDS ${rendered} ${output_folder}/pictures.qrc VERBATIM)
  target_sources(${target} PRIVATE ${output_folder}/pictures.cpp)
  # Generated code is not held to our warnings.
  set_source_files_properties(${output_folder}/pictures.cpp PROPERTIES COMPILE_OPTIONS "-w")
endfunction()

# SPDX-License-Identifier: GPL-3.0-or-later
# quorvane_translations(TARGET)
#
# Embeds resources/translations/quorvane_LANGUAGE.ts, compiled, as :/translations/quorvane_LANGUAGE.qm. A static library
# has to register them by Q_INIT_RESOURCE(translations). tools/translations.py brings the sources up to date.
function(quorvane_translations target)
  find_program(QUORVANE_LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
  set(output ${CMAKE_BINARY_DIR}/translations)
  set(compiled)
  set(entries)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/translations/*.ts)
  foreach(source IN LISTS sources)
    get_filename_component(name ${source} NAME_WE)
    add_custom_command(OUTPUT ${output}/${name}.qm
      COMMAND ${CMAKE_COMMAND} -E make_directory ${output}
      COMMAND ${QUORVANE_LRELEASE} -silent ${source} -qm ${output}/${name}.qm
      DEPENDS ${source} COMMENT "Compiling the translation ${name}" VERBATIM)
    list(APPEND compiled ${output}/${name}.qm)
    string(APPEND entries "<file>${name}.qm</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${output}/translations.qrc CONTENT
    "<RCC><qresource prefix=\"/translations\">\n${entries}</qresource></RCC>\n" @ONLY)
  # Not compressed: then they are used where they lie in the program's file.
  add_custom_command(OUTPUT ${output}/translations.cpp
    COMMAND Qt6::rcc --name translations --no-compress --output ${output}/translations.cpp ${output}/translations.qrc
    DEPENDS ${compiled} ${output}/translations.qrc VERBATIM)
  target_sources(${target} PRIVATE ${output}/translations.cpp)
  # Generated code is not held to our warnings.
  set_source_files_properties(${output}/translations.cpp PROPERTIES COMPILE_OPTIONS "-w" SKIP_AUTOGEN ON)
endfunction()

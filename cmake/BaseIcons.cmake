# SPDX-License-Identifier: GPL-3.0-or-later
# quorvane_base_icons(FOLDER)
#
# Makes the built-in icon library of resources/library in FOLDER, a command a set, and the target base_icons, which all
# builds. A set is made anew when something changes that it was drawn of: the tool notes what that was.
function(quorvane_base_icons folder)
  set(description ${CMAKE_SOURCE_DIR}/resources/library/library.json)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${description})
  file(READ ${description} json)
  string(JSON sets GET "${json}" sets)
  string(JSON count LENGTH "${sets}")
  math(EXPR last "${count} - 1")
  set(notes ${CMAKE_BINARY_DIR}/baseicons)
  file(MAKE_DIRECTORY ${folder} ${notes})
  set(tool quorvane_baseicons ${CMAKE_SOURCE_DIR}/resources ${folder})

  add_custom_command(OUTPUT ${folder}/sets.plist
    COMMAND ${tool} DEPENDS quorvane_baseicons ${description}
    COMMENT "Listing the sets of the icon library" VERBATIM)
  set(made ${folder}/sets.plist)
  foreach(index RANGE ${last})
    string(JSON set GET "${sets}" ${index})
    string(JSON name GET "${set}" name)
    string(JSON icons GET "${set}" icons)
    string(JSON icon_count LENGTH "${icons}")
    math(EXPR last_icon "${icon_count} - 1")
    set(files ${folder}/${name}/QVIcons.plist)
    foreach(icon_index RANGE ${last_icon})
      string(JSON type TYPE "${icons}" ${icon_index})
      if(type STREQUAL "STRING")
        string(JSON icon GET "${icons}" ${icon_index})
      else()
        string(JSON icon GET "${icons}" ${icon_index} name)
      endif()
      list(APPEND files ${folder}/${name}/${icon}.icns)
    endforeach()
    add_custom_command(OUTPUT ${files}
      COMMAND ${tool} ${name} ${notes}/${index}.d
      DEPENDS quorvane_baseicons ${description}
      DEPFILE ${notes}/${index}.d
      COMMENT "Drawing the icons \"${name}\"" VERBATIM)
    list(APPEND made ${files})
  endforeach()
  add_custom_target(base_icons ALL DEPENDS ${made})
endfunction()

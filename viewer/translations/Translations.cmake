# The viewer's texts in seven languages beside English, which has its plural forms alone:
# orv_add_translations(<target>) compiles them and puts them into
# the target under :/translations/.
find_program(ORV_LRELEASE NAMES lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)

function(orv_add_translations target)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
  file(MAKE_DIRECTORY ${folder})
  set(list "<RCC>\n  <qresource prefix=\"/translations\">\n")
  foreach(code en fr de ja ko zh es pt)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/translations/orvanta_${code}.ts)
    add_custom_command(OUTPUT ${folder}/orvanta_${code}.qm
      COMMAND ${ORV_LRELEASE} -silent ${source} -qm ${folder}/orvanta_${code}.qm
      DEPENDS ${source}
      COMMENT "Compiling orvanta_${code}.qm"
      VERBATIM)
    string(APPEND list "    <file alias=\"orvanta_${code}.qm\">${folder}/orvanta_${code}.qm</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${folder}/translations.qrc CONTENT "${list}  </qresource>\n</RCC>\n" @ONLY)
  qt6_add_resources(compiled ${folder}/translations.qrc)
  target_sources(${target} PRIVATE ${compiled})
endfunction()

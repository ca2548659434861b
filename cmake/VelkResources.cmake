# Resources that are made by the build: bitmaps from drawings, catalogs from translations.

# The languages into which the texts of the plug-in and of the libraries are translated.
set(VELK_LANGUAGES cs da de en es fi fr hu id it ja ko nb pl pt ru sl sv tr zh zh_CHT)

# velk_bitmaps(VAR FOLDER OUTPUT): renders all drawings below FOLDER with the same names to OUTPUT,
# for a pixel ratio of 1 and 2. VAR gets the bitmaps' paths below OUTPUT.
function(velk_bitmaps var folder output)
  file(GLOB_RECURSE drawings CONFIGURE_DEPENDS RELATIVE "${folder}" "${folder}/*.svg")
  set(bitmaps)
  foreach(drawing IN LISTS drawings)
    string(REGEX REPLACE "\\.svg$" "" name "${drawing}")
    list(APPEND bitmaps "${name}.png" "${name}@2x.png")
  endforeach()
  list(TRANSFORM bitmaps PREPEND "${output}/" OUTPUT_VARIABLE files)
  list(TRANSFORM drawings PREPEND "${folder}/" OUTPUT_VARIABLE sources)
  add_custom_command(OUTPUT ${files}
    COMMAND velkbitmaps "${folder}" "${output}" ${drawings}
    DEPENDS velkbitmaps ${sources}
    COMMENT "Rendering ${folder}" VERBATIM)
  set(${var} ${bitmaps} PARENT_SCOPE)
endfunction()

# velk_catalogs(VAR MODULE FOLDER OUTPUT LANGUAGE...): MODULE_LANGUAGE.ts of FOLDER become catalogs in
# OUTPUT. VAR gets their names.
function(velk_catalogs var module folder output)
  file(MAKE_DIRECTORY "${output}")
  set(catalogs)
  foreach(language IN LISTS ARGN)
    set(source "${folder}/${module}_${language}.ts")
    set(catalog "${module}_${language}.qm")
    add_custom_command(OUTPUT "${output}/${catalog}"
      COMMAND Qt6::lrelease -silent "${source}" -qm "${output}/${catalog}"
      DEPENDS "${source}" VERBATIM)
    list(APPEND catalogs "${catalog}")
  endforeach()
  set(${var} ${catalogs} PARENT_SCOPE)
endfunction()

# velk_library_catalogs(LIBRARY): the library brings its own catalogs, LIBRARY_LANGUAGE.ts of the folder
# translations, in all languages. They are found under ":/translations" while it is loaded.
function(velk_library_catalogs library)
  set(output "${CMAKE_CURRENT_BINARY_DIR}/translations")
  velk_catalogs(catalogs ${library} "${CMAKE_SOURCE_DIR}/translations" "${output}" ${VELK_LANGUAGES})
  list(TRANSFORM catalogs PREPEND "${output}/")
  qt_add_resources(${library} ${library}Translations PREFIX /translations BASE "${output}"
                   FILES ${catalogs}
                   OPTIONS --format-version 1) # has no times of files: two builds give the same bytes
endfunction()

# velk_resource_list(FILE [PREFIX FOLDER NAME...]...): writes a resource list with the files NAME of
# FOLDER below PREFIX. "--" separates the prefixes.
function(velk_resource_list file)
  set(text "<RCC>\n")
  set(prefix "")
  set(folder "")
  foreach(word IN LISTS ARGN)
    if(word STREQUAL "--")
      string(APPEND text "  </qresource>\n")
      set(prefix "")
      set(folder "")
    elseif(prefix STREQUAL "")
      set(prefix "${word}")
      string(APPEND text "  <qresource prefix=\"${prefix}\">\n")
    elseif(folder STREQUAL "")
      set(folder "${word}")
    else()
      string(APPEND text "    <file alias=\"${word}\">${folder}/${word}</file>\n")
    endif()
  endforeach()
  string(APPEND text "  </qresource>\n</RCC>\n")
  file(CONFIGURE OUTPUT "${file}" CONTENT "${text}" @ONLY)
endfunction()

# velk_pack(OUTPUT NAME LIST FILE...): packs the files of a resource list into a source. It has no times
# of files (format 1): two builds give the same bytes.
function(velk_pack output name list)
  add_custom_command(OUTPUT "${output}"
    COMMAND Qt6::rcc --format-version 1 --name "${name}" --output "${output}" "${list}"
    DEPENDS "${list}" ${ARGN}
    COMMENT "Packing ${name}" VERBATIM)
endfunction()

# A layer is one folder and one library. Its headers are reachable as "folder/header.h" through a folder of links
# that holds this layer alone, so that an include of a layer that is not linked does not build.
#
#   amortix2_layer(engine DEPENDS automation HEADERS a.h ... SOURCES a.cpp ...)
function(amortix2_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "DEPENDS;HEADERS;SOURCES")
  set(base ${CMAKE_BINARY_DIR}/layers/${name})
  file(MAKE_DIRECTORY ${base})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${base}/${name} SYMBOLIC)

  add_library(${name} STATIC ${layer_SOURCES})
  list(TRANSFORM layer_HEADERS PREPEND ${base}/${name}/)
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${base} FILES ${layer_HEADERS})
  target_link_libraries(${name} PUBLIC ${layer_DEPENDS})
  set_target_properties(${name} PROPERTIES OUTPUT_NAME amortix2_${name})
endfunction()

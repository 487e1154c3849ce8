# A layer is one folder and one library, amortix2_<folder>. Its headers are reachable as "amortix2/folder/header.h"
# through a folder of links that holds this layer alone, so that an include of a layer that is not linked does not
# build.
#
#   amortix2_layer(engine DEPENDS automation PUBLIC records.h ... HEADERS a.h ... SOURCES a.cpp ...)
#
# PUBLIC headers are those that C++ programs include: they are installed with the library (library.cmake).
function(amortix2_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "DEPENDS;PUBLIC;HEADERS;SOURCES")
  set(base ${CMAKE_BINARY_DIR}/layers/${name})
  file(MAKE_DIRECTORY ${base}/amortix2)
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${base}/amortix2/${name} SYMBOLIC)

  set(target amortix2_${name})
  add_library(${target} STATIC ${layer_SOURCES})
  list(TRANSFORM layer_PUBLIC PREPEND ${base}/amortix2/${name}/)
  list(TRANSFORM layer_HEADERS PREPEND ${base}/amortix2/${name}/)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${base} FILES ${layer_PUBLIC} ${layer_HEADERS})
  list(TRANSFORM layer_DEPENDS PREPEND amortix2_)
  target_link_libraries(${target} PUBLIC ${layer_DEPENDS})
  set_target_properties(${target} PROPERTIES AMORTIX2_BASE "${base}" AMORTIX2_PUBLIC_HEADERS "${layer_PUBLIC}")
endfunction()

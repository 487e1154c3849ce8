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
  # A header of no source of its name is compiled by itself when interfaces are verified; the others stand first in
  # theirs.
  foreach(header IN LISTS layer_PUBLIC layer_HEADERS)
    string(REGEX REPLACE "[.]h$" ".cpp" source ${header})
    if(source IN_LIST layer_SOURCES)
      list(APPEND first_headers ${base}/amortix2/${name}/${header})
    else()
      list(APPEND lone_headers ${base}/amortix2/${name}/${header})
    endif()
  endforeach()
  list(TRANSFORM layer_PUBLIC PREPEND ${base}/amortix2/${name}/)
  target_sources(${target} PUBLIC
    FILE_SET HEADERS BASE_DIRS ${base} FILES ${first_headers}
    FILE_SET lone TYPE HEADERS BASE_DIRS ${base} FILES ${lone_headers})
  set_target_properties(${target} PROPERTIES INTERFACE_HEADER_SETS_TO_VERIFY lone)
  list(TRANSFORM layer_DEPENDS PREPEND amortix2_)
  target_link_libraries(${target} PUBLIC ${layer_DEPENDS})
  set_target_properties(${target} PROPERTIES AMORTIX2_BASE "${base}" AMORTIX2_PUBLIC_HEADERS "${layer_PUBLIC}")
endfunction()

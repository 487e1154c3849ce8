# What C++ programs link: the layers below the description as one library, static and shared. Amortix2::amortix2 is the
# shared one where BUILD_SHARED_LIBS is on or the package is installed, else the static one.
set(layers amortix2_automation amortix2_engine amortix2_calculators amortix2_charts amortix2_strategy amortix2_common)

foreach(kind static shared)
  string(TOUPPER ${kind} type)
  set(library amortix2_${kind})
  add_library(${library} ${type})
  foreach(layer IN LISTS layers)
    get_target_property(base ${layer} AMORTIX2_BASE)
    get_target_property(headers ${layer} AMORTIX2_PUBLIC_HEADERS)
    target_sources(${library}
      PRIVATE $<TARGET_OBJECTS:${layer}>
      PUBLIC FILE_SET HEADERS BASE_DIRS ${base} FILES ${headers})
  endforeach()
  target_compile_features(${library} PUBLIC cxx_std_20)
  set_target_properties(${library} PROPERTIES
    OUTPUT_NAME amortix2
    LINKER_LANGUAGE CXX
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    VERIFY_INTERFACE_HEADER_SETS OFF)
endforeach()
set_target_properties(amortix2_shared PROPERTIES EXPORT_NAME amortix2)
set_target_properties(amortix2_static PROPERTIES EXPORT_NAME static)

if(BUILD_SHARED_LIBS)
  add_library(Amortix2::amortix2 ALIAS amortix2_shared)
else()
  add_library(Amortix2::amortix2 ALIAS amortix2_static)
endif()

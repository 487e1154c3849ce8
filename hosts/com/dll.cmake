# The COM server. Its type library is compiled from the interface definition by the tools of mingw-w64 with Wine's
# standard definitions.
enable_language(RC)
find_path(AMORTIX2_STANDARD_IDL oaidl.idl PATHS /usr/include/wine/wine/windows NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(AMORTIX2_STANDARD_LIBRARY stdole2.tlb
  PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/i386-linux-gnu/wine/i386-windows
  NO_CMAKE_FIND_ROOT_PATH REQUIRED)

set(AMORTIX2_TYPE_LIBRARY ${CMAKE_CURRENT_BINARY_DIR}/amortix2.tlb)
set(AMORTIX2_MANIFEST ${CMAKE_CURRENT_SOURCE_DIR}/Amortix2.manifest)
math(EXPR bits "${CMAKE_SIZEOF_VOID_P} * 8")
set(widl ${AMORTIX2_WIDL} --win${bits} -I ${AMORTIX2_STANDARD_IDL} -L ${AMORTIX2_STANDARD_LIBRARY})
set(idl ${CMAKE_CURRENT_SOURCE_DIR}/amortix2.idl)
add_custom_command(
  OUTPUT ${AMORTIX2_TYPE_LIBRARY} ${CMAKE_CURRENT_BINARY_DIR}/include/amortix2.h
  COMMAND ${widl} -t -o ${AMORTIX2_TYPE_LIBRARY} ${idl}
  COMMAND ${CMAKE_COMMAND} -E make_directory include
  COMMAND ${widl} -h -o include/amortix2.h ${idl}
  DEPENDS ${idl}
  VERBATIM)

configure_file(resources.rc.in resources.rc @ONLY)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/resources.rc PROPERTIES
  OBJECT_DEPENDS "${AMORTIX2_TYPE_LIBRARY};${AMORTIX2_MANIFEST}")

# Everything but the exported functions is a library of its own, so that the tests' clients can call as it does.
add_library(com_binding STATIC
  automation_object.cpp
  bound_call.cpp
  changes.cpp
  class_factory.cpp
  dual_interface.cpp
  result_code.cpp
  late_bound.cpp
  make_value.cpp
  module.cpp
  page_context.cpp
  place.cpp
  read_value.cpp
  platform_records.cpp
  registration.cpp
  registry_entries.cpp
  text.cpp
  type_library.cpp
)
target_compile_definitions(com_binding PUBLIC UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
target_include_directories(com_binding SYSTEM PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/include)
target_link_libraries(com_binding PUBLIC amortix2_com amortix2_common ole32 oleaut32 advapi32 uuid)

add_library(amortix2_dll SHARED exports.cpp Amortix2.def ${CMAKE_CURRENT_BINARY_DIR}/resources.rc)
set_target_properties(amortix2_dll PROPERTIES OUTPUT_NAME Amortix2 PREFIX "")
target_link_libraries(amortix2_dll PRIVATE com_binding)
target_link_options(amortix2_dll PRIVATE -Wl,--enable-stdcall-fixup $<$<CONFIG:Release>:-s>)

add_custom_command(TARGET amortix2_dll POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${AMORTIX2_MANIFEST} $<TARGET_FILE_DIR:amortix2_dll>)

# The records and enumerations for C++ clients, as the type library has them.
add_library(com_interface INTERFACE)
add_custom_target(com_interface_header DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/include/amortix2.h)
add_dependencies(com_interface com_interface_header)
add_dependencies(com_binding com_interface_header)
target_include_directories(com_interface SYSTEM INTERFACE ${CMAKE_CURRENT_BINARY_DIR}/include)

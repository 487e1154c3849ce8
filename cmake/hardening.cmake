# The program and the libraries run inside other people's servers: what the compiler offers against a fault that
# becomes an attack is on. Debug builds carry the sanitizers instead.
function(amortix2_harden)
  add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  if(WIN32)
    # The stack protector's own functions are in a library here, which the option names to the linker too.
    add_link_options(-fstack-protector-strong -Wl,--dynamicbase,--nxcompat)
  else()
    add_compile_options(-fcf-protection)
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
  endif()
endfunction()

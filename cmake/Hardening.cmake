# What a release does against memory faults that slipped through: they end the program instead of being made use of.
# Sanitizers and the fuzzer bring stronger checks of their own, and without optimisation half of these do nothing.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(SORVANE_HARDENED OFF)
if(CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$"
   AND NOT SORVANE_SANITIZE AND NOT SORVANE_SANITIZE_THREADS AND NOT SORVANE_FUZZ)
  set(SORVANE_HARDENED ON)
endif()

# sorvane_harden(TARGET...): for what the program is made of. Not for all targets: tests are built without optimisation.
function(sorvane_harden)
  if(NOT SORVANE_HARDENED)
    return()
  endif()
  foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
    string(MAKE_C_IDENTIFIER "SORVANE_HAS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      list(APPEND compile_flags ${flag})
    endif()
  endforeach()
  foreach(flag -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
    string(MAKE_C_IDENTIFIER "SORVANE_HAS${flag}" known)
    check_linker_flag(CXX ${flag} ${known})
    if(${known})
      list(APPEND link_flags ${flag})
    endif()
  endforeach()
  foreach(target ${ARGN})
    # Whoever builds packages may have set it already, to another value.
    target_compile_options(${target} PRIVATE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 ${compile_flags})
    target_link_options(${target} PRIVATE ${link_flags})
  endforeach()
endfunction()

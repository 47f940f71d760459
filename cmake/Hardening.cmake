# What every binary of this project is built with, beside its warnings: no writable code, no
# predictable addresses, guarded stacks and copies, and no trace of the folder it was built in.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

# Sanitizers and coverage bring checks and paths of their own.
set(instrumented OFF)
if("${CMAKE_CXX_FLAGS}" MATCHES "-fsanitize|-fprofile")
  set(instrumented ON)
endif()

add_compile_options(-fstack-protector-strong)
if(NOT instrumented)
  add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
  if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")  # the guarded copies need an optimiser
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  endif()
endif()

if(WIN32)
  add_link_options(
    -fstack-protector-strong  # whose run-time part is a library
    -Wl,--dynamicbase -Wl,--nxcompat -Wl,--high-entropy-va -Wl,--no-insert-timestamp)
else()
  add_compile_options(-fcf-protection=full)
  add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()

# What would stay in memory after the last user of a shared library has closed it is made to go:
#   - unique symbols of the standard library's templates hold a library for good. None of these
#     templates is exported; they are the library's own affair anyway;
#   - the standard library that is linked into a Windows library never gives its reserve back.
function(mq_unload_cleanly target)
  if(WIN32)
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/return_reserve.cpp)
  else()
    set(script ${PROJECT_SOURCE_DIR}/cmake/hide-standard-library.map)
    target_link_options(${target} PRIVATE -Wl,--version-script=${script})
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${script})
  endif()
endfunction()

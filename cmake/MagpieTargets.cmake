# What every target of ours has in common: warnings as errors, the source root
# as the only include path, and the instrumentation that the preset asks for.
add_library(magpie_options INTERFACE)
target_include_directories(magpie_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(magpie_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
if(MAGPIE_SANITIZE)
  target_compile_options(magpie_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    $<IF:$<BOOL:$<TARGET_PROPERTY:MAGPIE_RUNS_ONCE>>,-O0,-O1>)
  target_link_options(magpie_options INTERFACE -fsanitize=address,undefined)
endif()
if(MAGPIE_COVERAGE)
  target_compile_options(magpie_options INTERFACE --coverage -O0)
  target_link_options(magpie_options INTERFACE --coverage)
endif()
if(MAGPIE_FUZZ)
  target_compile_options(magpie_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -O1 -g)
  target_link_options(magpie_options INTERFACE -fsanitize=address,undefined)
endif()

# Sources of the named folders, headers included, so that IDEs list them too.
function(magpie_sources out)
  set(found)
  foreach(folder IN LISTS ARGN)
    file(GLOB files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
                                      ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
    list(APPEND found ${files})
  endforeach()
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# A static library made of the sources in the named folders.
function(magpie_library name)
  magpie_sources(sources ${ARGN})
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${name} PUBLIC magpie_options)
endfunction()

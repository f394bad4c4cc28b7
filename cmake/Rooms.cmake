# The two shapes of target that the house is made of: a room (a library that may only use the rooms
# it names) and the tests of a room.

add_library(wine_cellar_flags INTERFACE)
target_compile_options(wine_cellar_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
  -Wold-style-cast -Woverloaded-virtual -Werror)
# g++ 12 sees overlapping copies in the joining of strings where there are none.
target_compile_options(wine_cellar_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# What makes a fault of memory in the delivered program end the run; scripts/check looks for all of it
# there. (The toolkit adds its own -fPIC behind -fPIE for the rooms that use it.)
set(hardening -fPIE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -D_GLIBCXX_ASSERTIONS)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
  list(APPEND hardening -fcf-protection)
endif()
target_compile_options(wine_cellar_flags INTERFACE "$<$<CONFIG:Release>:${hardening}>")
target_link_options(wine_cellar_flags INTERFACE "$<$<CONFIG:Release>:-pie;-Wl,-z,relro,-z,now>")
if(WINE_CELLAR_SANITIZE)
  target_compile_options(wine_cellar_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(wine_cellar_flags INTERFACE -fsanitize=address,undefined)
endif()

# add_room(NAME SOURCES file... USES target... [PRIVATELY target...])
function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES;PRIVATELY" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(${name}
    PUBLIC wine_cellar_flags ${ROOM_USES}
    PRIVATE ${ROOM_PRIVATELY})
endfunction()

# add_room_tests(NAME SOURCES file... USES target...)
# Every case of the binary becomes a ctest of its own, named after the room.
function(add_room_tests name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_executable(${name} ${ROOM_SOURCES})
  target_link_libraries(${name} PRIVATE wine_cellar_flags ${ROOM_USES} GTest::gtest GTest::gmock)
  gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 600)
endfunction()

include(GoogleTest)

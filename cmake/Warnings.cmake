# zrproj_warnings(TARGET): the warnings that every target of ours is built with, as errors. GCC 12 sees overlapping and
# overlong copies in its own std::string where there are none (its bug 105651); what is really there the sanitizers find.
function(zrproj_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor -Werror)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(${target} PRIVATE -Wno-restrict -Wno-array-bounds)
    endif()
endfunction()

# zrproj_warnings(TARGET): the warnings that every target of ours is built with, as errors.
function(zrproj_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor -Werror)
endfunction()

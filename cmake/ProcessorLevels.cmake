# zrproj_processor_levels(TARGET PREFIX SOURCES...): compiles arithmetic sources once per processor level, each into the
# namespace of its level, as object libraries PREFIX-LEVEL, and hands the objects on to whatever links TARGET (an object
# library's own objects are all that CMake takes of it).
#
# The floating-point contract: no -ffast-math anywhere; multiply-adds may be fused where the level has them (the
# compilers' default), never in the "scalar" level, which is the reference; rounding is to nearest, set by
# FloatingPointScope around every conversion.
function(zrproj_processor_levels target prefix)
    if(NOT ZRPROJ_SANITIZE) # sanitized formulas take the compiler a minute each with it
        set(optimised -O3)
    endif()
    set(levels scalar)
    set(flags_scalar -ffp-contract=off)
    if(ZRPROJ_SIMD)
        list(APPEND levels baseline)
        if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$")
            list(APPEND levels avx2 avx512)
            set(flags_avx2 -mavx2 -mfma)
            # GCC 12 takes the undefined-by-design operands of its own AVX-512 intrinsics for uninitialized ones.
            set(flags_avx512 -mavx512f -mavx512cd -mavx512dq -mavx512bw -mavx512vl -mfma -mprefer-vector-width=512
                -Wno-uninitialized -Wno-maybe-uninitialized)
        endif()
    endif()
    foreach(level ${levels})
        set(objects ${prefix}-${level})
        add_library(${objects} OBJECT ${ARGN})
        zrproj_warnings(${objects})
        target_include_directories(${objects} PRIVATE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
        target_compile_definitions(${objects} PRIVATE ZRPROJ_BUILDING ZRPROJ_LEVEL=${level} ZRPROJ_LEVEL_${level})
        target_compile_options(${objects} PRIVATE ${optimised} -fno-math-errno ${flags_${level}})
        target_sources(${target} INTERFACE $<TARGET_OBJECTS:${objects}>)
    endforeach()
endfunction()

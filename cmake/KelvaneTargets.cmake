# What every target of this project is built with. Warnings belong to our targets only, never to what they link.
# Optimised, g++ 12 takes every std::get_if for a null pointer that is used.
function(kelvane_target target)
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/Sources")
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_URL_CAST_FROM_STRING
        # Newer Qt marks what 6.4 has no other way for.
        QT_WARN_DEPRECATED_UP_TO=0x060400
        KELVANE_VERSION="${PROJECT_VERSION}")
    if(APPLE)
        # Apple's headers else define `check` and `require` as macros.
        target_compile_definitions(${target} PRIVATE __ASSERT_MACROS_DEFINE_VERSIONS_WITHOUT_UNDERSCORES=0)
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<CONFIG:Debug>:-Wnull-dereference> -Wimplicit-fallthrough
        $<$<BOOL:${KELVANE_WERROR}>:-Werror>)
    if(KELVANE_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=${KELVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PUBLIC -fsanitize=${KELVANE_SANITIZE})
    endif()
endfunction()

# What the QML compiler writes for a target is not ours to warn about.
function(kelvane_quiet_compiled_qml target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/")
    if(sources)
        set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
    endif()
endfunction()

# A Qt Test program of one source file, registered with CTest under its own name; "sanitized." goes before it where a
# sanitizer watches, so that a run over several builds can tell them apart. PROPERTIES are CTest's.
function(kelvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 TEST "" "" "SOURCES;LIBRARIES;PROPERTIES")
    add_executable(${name} ${TEST_SOURCES})
    kelvane_target(${name})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/Tests")
    target_link_libraries(${name} PRIVATE Qt6::Test ${TEST_LIBRARIES})
    set(registered ${name})
    if(KELVANE_SANITIZE)
        set(registered sanitized.${name})
    endif()
    add_test(NAME ${registered} COMMAND ${name})
    set_tests_properties(${registered} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" ${TEST_PROPERTIES})
endfunction()

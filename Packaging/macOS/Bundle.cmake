# Makes the application bundle of the target that is given, in the directory that calls it: its own Info.plist, and the
# icon among its resources. What a copy for other machines needs besides is done by make-bundle.
function(kelvane_bundle target)
    set(icon ${PROJECT_BINARY_DIR}/Packaging/Icon/Kelvane.icns)
    target_sources(${target} PRIVATE ${icon})
    set_source_files_properties(${icon} PROPERTIES GENERATED ON MACOSX_PACKAGE_LOCATION Resources)
    add_dependencies(${target} icons)
    set_target_properties(${target} PROPERTIES
        MACOSX_BUNDLE ON
        MACOSX_BUNDLE_INFO_PLIST ${PROJECT_SOURCE_DIR}/Packaging/macOS/Info.plist.in
        OUTPUT_NAME Kelvane)
endfunction()

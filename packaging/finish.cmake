# Called by cpack when everything is staged: in each component's folder, compresses manual pages and adds what
# Debian's policy wants to stand in /usr/share/doc.
function(compress file)
    execute_process(COMMAND gzip -9n "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component package IN ZIP_LISTS CPACK_COMPONENTS_ALL CPACK_KT_PACKAGES)
    set(folder "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share")
    file(GLOB pages "${folder}/man/man1/*.1")
    foreach(page IN LISTS pages)
        compress("${page}")
    endforeach()
    file(COPY "${CPACK_KT_PACKAGING_DIR}/copyright" "${CPACK_KT_PACKAGING_DIR}/changelog"
        DESTINATION "${folder}/doc/${package}")
    compress("${folder}/doc/${package}/changelog")
endforeach()

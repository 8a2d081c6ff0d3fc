# Run by CPack once it has packed: its packages tell the builder's mask, as their folders' modes, and the archive tells who
# built it. Made again without.
foreach(paquet IN LISTS CPACK_PACKAGE_FILES)
    set(depliee ${CPACK_TEMPORARY_DIRECTORY}/depliee)
    file(REMOVE_RECURSE ${depliee})
    if(paquet MATCHES "\\.deb$")
        execute_process(COMMAND dpkg-deb --raw-extract ${paquet} ${depliee} COMMAND_ERROR_IS_FATAL ANY)
        execute_process(COMMAND chmod -R u+w,go=u-w ${depliee} COMMAND_ERROR_IS_FATAL ANY)
        execute_process(
            COMMAND dpkg-deb --root-owner-group --threads-max=1 --build ${depliee} ${paquet}
            COMMAND_ERROR_IS_FATAL ANY)
    else()
        file(ARCHIVE_EXTRACT INPUT ${paquet} DESTINATION ${depliee})
        execute_process(
            COMMAND tar --create --sort=name --format=gnu --owner=root:0 --group=root:0 --mode=u+w,go=u-w
                --mtime=@$ENV{SOURCE_DATE_EPOCH} --directory=${depliee} ${CPACK_PACKAGE_FILE_NAME}
            COMMAND xz --threads=1
            OUTPUT_FILE ${paquet}
            COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()

# Read by CPack before it packs: files bear the day of the version, so that the same sources give the same packages.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    set(ENV{SOURCE_DATE_EPOCH} ${CPACK_JOUR})
endif()

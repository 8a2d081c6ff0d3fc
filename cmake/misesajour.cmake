# Where updates come from, and who signs them: given when a package is made, checked here.
set(QUILLET_FLUX "" CACHE STRING "https address of the feed of updates (Sparkle's appcast); empty: no updates")
set(QUILLET_CLE_PUBLIQUE "" CACHE STRING "Ed25519 public key that signs updates, in base64 (32 bytes)")

if(QUILLET_FLUX)
    if(NOT QUILLET_FLUX MATCHES "^https://[A-Za-z0-9][-A-Za-z0-9._~:/?&=%+]*$")
        message(FATAL_ERROR "QUILLET_FLUX is no https address: ${QUILLET_FLUX}")
    endif()
    # 32 bytes are 43 characters, the last of four bits, and one "=".
    string(LENGTH "${QUILLET_CLE_PUBLIQUE}" longueur)
    if(NOT longueur EQUAL 44 OR NOT QUILLET_CLE_PUBLIQUE MATCHES "^[A-Za-z0-9+/]+[AEIMQUYcgkosw048]=$")
        message(FATAL_ERROR "QUILLET_CLE_PUBLIQUE is no Ed25519 public key in base64: ${QUILLET_CLE_PUBLIQUE}")
    endif()
endif()

# Run by ctest with CLANG_FORMAT: refuses a file that it would lay out otherwise.
cmake_policy(VERSION 3.25)

file(GLOB listes ${CMAKE_CURRENT_LIST_DIR}/../*/CMakeLists.txt)
foreach(liste IN LISTS listes)
    cmake_path(GET liste PARENT_PATH dossier)
    file(GLOB_RECURSE trouvees ${dossier}/*.h ${dossier}/*.cpp)
    list(APPEND sources ${trouvees})
endforeach()
execute_process(COMMAND ${CLANG_FORMAT} --dry-run -Werror ${sources} COMMAND_ERROR_IS_FATAL ANY)

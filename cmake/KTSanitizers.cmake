# KT_SANITIZE: "" (none), "address" (with undefined behaviour) or "thread".
set(KT_SANITIZE "" CACHE STRING "Sanitizers to build everything with: address or thread")
set_property(CACHE KT_SANITIZE PROPERTY STRINGS "" address thread)

if(KT_SANITIZE STREQUAL "address")
    add_compile_options(-fsanitize=address,undefined,float-cast-overflow
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        add_compile_options("-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/sanitizers.ignore")
    endif()
elseif(KT_SANITIZE STREQUAL "thread")
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
    add_library(KTThreadAnnotations STATIC cmake/KTThreadAnnotations.cpp)
    target_link_libraries(KTThreadAnnotations PRIVATE ${KT_QT}::Core)
    link_libraries("$<BUILD_INTERFACE:KTThreadAnnotations>")
    foreach(lock
            _ZN6QMutex4lockEv _ZN6QMutex6unlockEv _ZN6QMutex7tryLockEi
            _ZN14QReadWriteLock11lockForReadEv _ZN14QReadWriteLock12lockForWriteEv
            _ZN14QReadWriteLock6unlockEv)
        add_link_options("LINKER:--wrap=${lock}")
    endforeach()
elseif(KT_SANITIZE)
    message(FATAL_ERROR "KT_SANITIZE is '${KT_SANITIZE}'; it must be empty, address or thread")
endif()

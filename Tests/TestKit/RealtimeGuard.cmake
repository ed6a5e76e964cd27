# Counts what a real-time thread must not do. Without a sanitizer the allocator is replaced by definitions in the program,
# so the library is made of objects: from an archive the linker might not take them.
if(TOCCA_SANITIZE)
    set(realtime_hooks RealtimeSanitizerHooks.cpp)
else()
    set(realtime_hooks RealtimeInterposers.cpp)
endif()
add_library(tocca_testkit_realtime OBJECT RealtimeGuard.cpp ${realtime_hooks})
target_include_directories(tocca_testkit_realtime PUBLIC ${PROJECT_SOURCE_DIR}/Tests)
target_link_libraries(tocca_testkit_realtime PUBLIC tocca_options PRIVATE ${CMAKE_DL_LIBS})

app_test(RealtimeGuardTests SOURCES RealtimeGuardTest.cpp DEPENDS tocca_testkit_realtime)

# Uninstall: a stand-in uninstaller, and a small MSI that msiexec installs and removes.
norvale_add_wine_helper(fake_uninstaller SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/win/uninstall_fake_uninstaller.cpp)
find_program(NORVALE_WIXL wixl)
if(NORVALE_WIXL)
    set(uninstall_sample_msi ${CMAKE_CURRENT_BINARY_DIR}/norvale-sample.msi)
    add_custom_command(OUTPUT ${uninstall_sample_msi}
        COMMAND ${NORVALE_WIXL} -a x64 -o ${uninstall_sample_msi} uninstall_sample.wxs
        WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/win
        DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/win/uninstall_sample.wxs)
    add_custom_target(uninstall_sample_msi DEPENDS ${uninstall_sample_msi})
    add_dependencies(${platform_test_target} uninstall_sample_msi)
    target_compile_definitions(${platform_test_target} PRIVATE "NORVALE_SAMPLE_MSI=\"Z:${uninstall_sample_msi}\"")
endif()
# Force removal: a program that keeps running from its install folder.
norvale_add_wine_helper(forceremove_sleeper SOURCES ${CMAKE_CURRENT_SOURCE_DIR}/win/forceremove_sleeper.cpp)

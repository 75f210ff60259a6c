# Job notes: the model and the defaults file in the core library, the pane
# and the defaults dialog in the widgets library, the exported entry function
# in the plug-in module.
target_sources(orvan_core PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/JobNotesModel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/JobNotesPreferences.cpp
)
target_sources(orvan_widgets PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/JobNotesPanel.cpp
    ${CMAKE_CURRENT_LIST_DIR}/JobNotesView.cpp
    ${CMAKE_CURRENT_LIST_DIR}/JobNotesPreferencesDialog.cpp
)
target_sources(${ORVAN_PLUGIN_NAME} PRIVATE ${CMAKE_CURRENT_LIST_DIR}/plugin/JobNotesPanelEntry.cpp)

# Draws the panel's two icons into resources/bundle/images/; run by hand when
# they change (cmake --build <dir> --target orvan_job_notes_pictures).
add_executable(orvan_draw_job_notes_pictures EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/tools/DrawJobNotesPictures.cpp)
target_link_libraries(orvan_draw_job_notes_pictures PRIVATE Qt6::Gui)
add_custom_target(orvan_job_notes_pictures
    COMMAND orvan_draw_job_notes_pictures ${CMAKE_SOURCE_DIR}/resources/bundle/images
    DEPENDS orvan_draw_job_notes_pictures VERBATIM)

if(ORVAN_BUILD_TESTS)
    find_package(Qt6 REQUIRED COMPONENTS Test)
    orvan_add_test(NAME jobnotes_model_tests
        SOURCES ${CMAKE_CURRENT_LIST_DIR}/tests/JobNotesModelTest.cpp
        LIBS orvan_core)
    orvan_add_test(NAME jobnotes_widget_tests
        SOURCES ${CMAKE_CURRENT_LIST_DIR}/tests/JobNotesPanelTest.cpp
        LIBS orvan_widgets Qt6::Test
        APPLICATION widgets)
    # The pane in orvan-print (built by host/).
    if("host" IN_LIST ORVAN_SUBSYSTEMS)
        orvan_add_test(NAME jobnotes_print_tests
            SOURCES ${CMAKE_CURRENT_LIST_DIR}/tests/JobNotesPrintTest.cpp
            LIBS orvan_print_host Qt6::Test
            APPLICATION widgets)
        add_dependencies(jobnotes_print_tests ${ORVAN_PLUGIN_NAME} orvan-print)
    endif()
endif()

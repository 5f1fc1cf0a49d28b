# The program.
add_executable(quvera-processor main.cpp)
target_link_libraries(quvera-processor PRIVATE processor_scenario processor_board processor_link)
quvera_use_pch(quvera-processor pch_core)
install(TARGETS quvera-processor RUNTIME DESTINATION bin COMPONENT tools)

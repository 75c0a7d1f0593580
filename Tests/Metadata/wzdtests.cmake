set(uv_wzd_tests
    WizardOptionsTest.cpp)

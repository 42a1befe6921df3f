// The one source of the target that compiles the test framework's headers for all tests: a target has to have
// one.

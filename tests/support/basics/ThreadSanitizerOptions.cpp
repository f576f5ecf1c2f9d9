/// What the thread sanitizer is to do in the tests. Qt is not compiled with it, so that it does not
/// see what keeps the threads of Qt apart and would take all that they share for races.
extern "C" const char* __tsan_default_options();
extern "C" const char* __tsan_default_options() { return "ignore_noninstrumented_modules=1"; }

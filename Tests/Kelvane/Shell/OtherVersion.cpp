// A window's library that an update has left behind.

extern "C" {

__attribute__((visibility("default"))) const char* kelvaneWindowVersion() {
    return "0.0.1";
}

__attribute__((visibility("default"))) void* kelvaneMakeWindow() {
    return nullptr;
}
}

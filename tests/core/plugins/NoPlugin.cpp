/// A shared object that knows nothing of plug-ins.
extern "C" int answer() {
    return 42;
}

// A library that is no plug-in.
extern "C" int ReturnSeven();

int ReturnSeven() {
    return 7;
}

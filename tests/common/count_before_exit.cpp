// Coverage only: a fatal error ends the program by _Exit, which would lose what it has counted.
extern "C" {
void __gcov_dump();
[[noreturn]] void __real__Exit(int Status);

[[noreturn]] void __wrap__Exit(int Status)
{
    __gcov_dump();
    __real__Exit(Status);
}
}

// tvxtool: command-line access to scan files and projects, for tests, scripts and support.
#include <QCoreApplication>

#include <cstdio>
#include <cstring>

namespace {

const char usage[] = "usage: tvxtool COMMAND [ARGUMENTS]\n";

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 2 || std::strcmp(argv[1], "--help") == 0) {
        std::fputs(usage, argc < 2 ? stderr : stdout);
        return argc < 2 ? 2 : 0;
    }
    std::fputs(usage, stderr);
    return 2;
}

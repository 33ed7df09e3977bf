#include "testregistry.h"

#ifdef TVX_TEST_WIDGETS
#include "glviews/glsurfaceformat.h"
#include "mainwindow/coreresources.h"

#include <QApplication>
#else
#include <QGuiApplication>
#endif
#include <QStandardPaths>
#include <QTest>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace TVX::TEST {

namespace {
std::map<std::string, TestFactory>& registry()
{
    static std::map<std::string, TestFactory> tests;
    return tests;
}
} // namespace

int registerTest(const char* className, TestFactory factory)
{
    registry()[className] = std::move(factory);
    return 0;
}

} // namespace TVX::TEST

#ifdef TVX_TEST_WIDGETS
namespace {
// Mesa unloads its software driver when the display closes, and the driver's own leaks would then
// be reported against an unknown module that no suppression can name. Keeping it loaded lets the
// leak suppressions for the driver apply.
void pinSoftwareGLDriver()
{
    if (std::getenv("LIBGL_ALWAYS_SOFTWARE"))
        dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_NOW | RTLD_NODELETE);
}
} // namespace
#endif

// Usage: tests_<folder> [CLASS [QtTest options]]; without a class every registered class runs.
int main(int argc, char** argv)
{
    // Settings written by tests go to a throw-away location, never to the user's own store.
    QStandardPaths::setTestModeEnabled(true);
#ifdef TVX_TEST_WIDGETS
    pinSoftwareGLDriver();
    TVX::CORE::installCompatibilityGLFormat();
    QApplication app(argc, argv);
    TVX::CORE::registerCoreResources();
#else
    QGuiApplication app(argc, argv);
#endif

    auto& tests = TVX::TEST::registry();
    if (argc > 1 && argv[1][0] != '-') {
        const auto it = tests.find(argv[1]);
        if (it == tests.end()) {
            std::fprintf(stderr, "no test class %s\n", argv[1]);
            return 2;
        }
        argv[1] = argv[0];
        const auto test = it->second();
        return QTest::qExec(test.get(), argc - 1, argv + 1);
    }
    int failures = 0;
    for (const auto& [name, factory] : tests) {
        const auto test = factory();
        failures += QTest::qExec(test.get(), argc, argv);
    }
    return failures;
}

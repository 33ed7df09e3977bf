#pragma once

#include <QObject>

#include <functional>
#include <memory>

// Every folder of tests is one executable holding several QtTest classes. A class registers itself
// with TVX_TEST (or TVX_GL_TEST when it needs an OpenGL context); CTest runs each class on its own
// by passing its name as the first argument.
namespace TVX::TEST {

using TestFactory = std::function<std::unique_ptr<QObject>()>;

int registerTest(const char* className, TestFactory factory);

} // namespace TVX::TEST

#define TVX_TEST(Class) \
    static const int tvxRegistered##Class = TVX::TEST::registerTest(#Class, [] { return std::make_unique<Class>(); });
#define TVX_GL_TEST(Class) TVX_TEST(Class)

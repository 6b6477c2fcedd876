#pragma once

#include <UiElements/app/WApplication.h>

#include <QtTest>

/// QTEST_MAIN with our application object, under the same conditions on every machine.
#define W_TEST_MAIN(TestClass)                                                                                         \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi);                                                               \
        WApplication app(argc, argv);                                                                                  \
        QApplication::setStyle(QStringLiteral("Fusion"));                                                              \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

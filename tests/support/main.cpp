// SPDX-License-Identifier: Apache-2.0
#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    // Real widgets without a screen, with texts that do not depend on the tester's language.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANGUAGE", "en");
    testing::InitGoogleMock(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}

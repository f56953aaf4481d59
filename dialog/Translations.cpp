// SPDX-License-Identifier: Apache-2.0
#include "dialog/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace dialog {

Translations::Translations()
{
    const QLocale user = QLocale::system();
    if (mQt.load(user, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&mQt);
    }
    if (mOwn.load(user, QStringLiteral("dialog"), QStringLiteral("_"), QStringLiteral(":/i18n"))) {
        QCoreApplication::installTranslator(&mOwn);
    }
}

Translations::~Translations()
{
    QCoreApplication::removeTranslator(&mOwn);
    QCoreApplication::removeTranslator(&mQt);
}

} // namespace dialog

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
    // Without a file for the user's languages the English one has the forms for one and for many.
    const QString folder = QStringLiteral(":/i18n");
    if (mOwn.load(user, QStringLiteral("dialog"), QStringLiteral("_"), folder)
        || mOwn.load(QStringLiteral("dialog_en"), folder)) {
        QCoreApplication::installTranslator(&mOwn);
    }
}

Translations::~Translations()
{
    QCoreApplication::removeTranslator(&mOwn);
    QCoreApplication::removeTranslator(&mQt);
}

} // namespace dialog

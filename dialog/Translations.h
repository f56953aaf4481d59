// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTranslator>

namespace dialog {

/// Puts the dialog's and Qt's own texts into the user's language as long as it lives.
class Translations
{
public:
    Translations();
    ~Translations();
    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;

private:
    QTranslator mOwn;
    QTranslator mQt;
};

} // namespace dialog

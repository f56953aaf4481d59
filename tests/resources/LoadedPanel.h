// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Bundle.h"
#include "platform/Outlets.h"

#include <QStringList>
#include <QWidget>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// The built bundle's strings and interface description in one language.
class LoadedPanel
{
public:
    explicit LoadedPanel(const QString &language);

    const platform::Bundle &bundle() const { return mBundle; }

    /// The panel's view, or null when the description does not load.
    QWidget *view() const { return mView.get(); }

    /// The control called `name`; a missing one fails the test with an exception that names it.
    template <class Control> Control *find(const QString &name) const
    {
        if (auto *control = mView->findChild<Control *>(name)) {
            return control;
        }
        throw std::runtime_error("the panel has no such control: " + name.toStdString());
    }

    /// What a control is called, rows of a matrix by the matrix.
    static QString nameOf(const QWidget *control);

private:
    platform::Bundle mBundle;
    platform::Outlets mOutlets;
    std::unique_ptr<QWidget> mView;
};

/// The panel's keys, without the titles that a printer gives.
QStringList panelKeys();

/// A place for a text in the view, and the keys of the texts that the panel puts there.
struct TextPlace
{
    QString control;
    QStringList keys;
};

/// The title labels.
QList<TextPlace> titlePlaces();

/// The source texts of the description that are for translators.
QStringList fixedTexts();

/// The languages beside English.
std::vector<std::string> translatedLanguages();

std::vector<std::string> languages();

/// Names the tests of a suite over languages.
std::string languageOf(const testing::TestParamInfo<std::string> &test);

// SPDX-License-Identifier: Apache-2.0
#include "platform/ViewHost.h"

#include "platform/Bundle.h"
#include "platform/Outlets.h"
#include "platform/RadioMatrix.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QMap>
#include <QTranslator>
#include <QUiLoader>

#include <utility>

namespace platform {
namespace {

QMap<QString, MakeWidget> &widgetClasses()
{
    static QMap<QString, MakeWidget> classes{
        {QStringLiteral("platform::RadioMatrix"),
         [](QWidget *parent) { return new RadioMatrix(parent); }}};
    return classes;
}

/// Makes the registered classes beside Qt's own.
class Loader : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        const auto make = widgetClasses().constFind(className);
        QWidget *widget = make == widgetClasses().constEnd()
            ? QUiLoader::createWidget(className, parent, name)
            : (*make)(parent);
        if (widget) {
            widget->setObjectName(name);
        }
        return widget;
    }
};

/// Has a bundle's texts in the application for the time of a load, and lets no window notice: the
/// windows' own texts stay as they are.
class TextsDuringLoad : public QObject
{
public:
    explicit TextsDuringLoad(QTranslator *texts)
        : mTexts(texts)
    {
        if (mTexts) {
            qApp->installEventFilter(this);
            QCoreApplication::installTranslator(mTexts);
        }
    }

    ~TextsDuringLoad() override
    {
        if (mTexts) {
            QCoreApplication::removeTranslator(mTexts);
        }
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return watched == qApp && event->type() == QEvent::LanguageChange;
    }

private:
    QTranslator *mTexts;
};

class Desktop : public ViewHost
{
public:
    std::unique_ptr<QWidget> loadNibNamed(const QString &name, const Bundle &bundle,
                                          Outlets &owner) override;

    std::optional<double> keyWindowHeight() const override
    {
        const QWidget *window = QApplication::activeWindow();
        return window ? std::optional<double>(window->frameGeometry().height()) : std::nullopt;
    }
};

std::unique_ptr<QWidget> Desktop::loadNibNamed(const QString &name, const Bundle &bundle,
                                               Outlets &owner)
{
    const std::optional<QString> path = bundle.pathForResource(name + QStringLiteral(".ui"));
    if (!path) {
        qWarning("%ls has no interface description %ls.ui; install the panel again.",
                 qUtf16Printable(bundle.path()), qUtf16Printable(name));
        return nullptr;
    }
    QFile file(*path);
    Loader loader;
    std::unique_ptr<QWidget> view;
    if (file.open(QIODevice::ReadOnly)) {
        const TextsDuringLoad texts(bundle.strings());
        view.reset(loader.load(&file));
    }
    if (!view) {
        qWarning("%ls cannot be read as an interface description (%ls); install the panel again.",
                 qUtf16Printable(*path),
                 qUtf16Printable(file.error() == QFile::NoError ? loader.errorString()
                                                                : file.errorString()));
        return nullptr;
    }
    owner.connectTo(view.get());
    return view;
}

ViewHost *&replacement()
{
    static ViewHost *host = nullptr;
    return host;
}

} // namespace

ViewHost::~ViewHost() = default;

ViewHost &ViewHost::current()
{
    static Desktop desktop;
    return replacement() ? *replacement() : desktop;
}

void ViewHost::setCurrent(ViewHost *host)
{
    replacement() = host;
}

void registerWidgetClass(const QString &className, MakeWidget make)
{
    widgetClasses().insert(className, std::move(make));
}

} // namespace platform

// SPDX-License-Identifier: Apache-2.0
#include "dialog/ExtendedTicket.h"

#include "dialog/PropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace dialog {
namespace {

constexpr QLatin1String kPaperKey("KtPaperName2");
constexpr QLatin1String kColourKey("KtVLMultiColor");
constexpr QLatin1String kBlackText("MultiColorMonochrome");
constexpr QLatin1String kBlackAndRedText("MultiColorBlackRed");

/// How deep the keys of the root dictionary stand: in plist, in dict.
constexpr int kKeyDepth = 3;

/// Copies a property list token by token, so that nothing of it changes but the text under one key
/// of the root dictionary.
class Rewriter
{
public:
    /// No key changes nothing, no text takes the key out.
    Rewriter(const QByteArray &xml, const QString &key, const std::optional<QString> &text)
        : mReader(xml)
        , mWriter(&mXml)
        , mKey(key)
        , mText(text)
    { }

    /// Nothing when it is no XML, or nests too deep.
    std::optional<QByteArray> run()
    {
        while (!mReader.atEnd() && mDepth <= ExtendedTicket::kDeepest) {
            mReader.readNext();
            copy();
        }
        return mReader.hasError() || mDepth != 0 ? std::nullopt : std::optional(mXml);
    }

private:
    void copy()
    {
        if (mReader.isStartElement()) {
            ++mDepth;
            if (mDepth == kKeyDepth && mReader.name() == u"key") {
                copyKey();
                return;
            }
        } else if (mReader.isEndElement()) {
            if (mDepth == kKeyDepth - 1) {
                writeText();
            }
            --mDepth;
        } else if (mReader.isDTD() && !mReader.entityDeclarations().isEmpty()) {
            // A few bytes that stand for megabytes.
            mReader.raiseError();
        }
        if (!mReader.hasError()) {
            mWriter.writeCurrentToken(mReader);
        }
    }

    void copyKey()
    {
        const QString key = mReader.readElementText();
        --mDepth;
        if (mKey.isEmpty() || key != mKey) {
            mWriter.writeTextElement(QStringLiteral("key"), key);
            return;
        }
        writeText();
        if (mReader.readNextStartElement()) {
            mReader.skipCurrentElement();
        } else {
            // The end of the dictionary.
            copy();
        }
    }

    void writeText()
    {
        if (mText) {
            mWriter.writeTextElement(QStringLiteral("key"), mKey);
            mWriter.writeTextElement(QStringLiteral("string"), *mText);
            mText.reset();
        }
    }

    QByteArray mXml;
    QXmlStreamReader mReader;
    QXmlStreamWriter mWriter;
    const QString mKey;
    std::optional<QString> mText;
    int mDepth = 0;
};

QByteArray rewritten(const QByteArray &xml, const QString &key, const std::optional<QString> &text)
{
    return Rewriter(xml, key, text).run().value_or(xml);
}

} // namespace

ExtendedTicket::ExtendedTicket()
    : mXml(toPropertyList({}).value_or(QByteArray()))
{ }

Result<ExtendedTicket> ExtendedTicket::open(const QString &path)
{
    QFile file(path);
    const bool exists = QFileInfo::exists(path);
    if (exists && !QFileInfo(path).isFile()) {
        return Failure{FailureKind::Settings, path,
                       tr("is not a file; give --ticket the path of a ticket")};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return Failure{FailureKind::Settings, path,
                       exists ? tr("cannot be read; give --ticket a file that you may read")
                              : tr("there is no such file; check the path given with --ticket")};
    }
    return read(file.read(kLargest + 1), path);
}

Result<ExtendedTicket> ExtendedTicket::read(const QByteArray &xml, const QString &name)
{
    ExtendedTicket ticket;
    if (std::optional<Failure> failure = ticket.take(xml, name)) {
        return *failure;
    }
    return ticket;
}

std::optional<Failure> ExtendedTicket::take(const QByteArray &xml, const QString &name)
{
    const auto failure = [&name](const QString &why) {
        return Failure{FailureKind::Settings, name, why};
    };
    if (xml.trimmed().isEmpty()) {
        return failure(tr("is empty; give another ticket with --ticket"));
    }
    if (xml.size() > kLargest) {
        return failure(tr("is too large for a ticket; give one of at most %L1 bytes with --ticket")
                           .arg(kLargest));
    }
    const std::optional<QByteArray> copy = Rewriter(xml, {}, {}).run();
    const std::optional<QVariantMap> entries = copy ? fromPropertyList(*copy) : std::nullopt;
    if (!entries) {
        return failure(tr("is no XML property list with a dictionary in it; give another ticket "
                          "with --ticket"));
    }
    for (const auto &[key, field] :
         {std::pair(kPaperKey, &ExtendedTicket::mPaper), {kColourKey, &ExtendedTicket::mColour}}) {
        const QVariant value = entries->value(key);
        if (entries->contains(key) && value.typeId() != QMetaType::QString) {
            return failure(
                tr("its entry %1 is not a text; give another ticket with --ticket").arg(key));
        }
        this->*field = value.isValid() ? std::optional(value.toString()) : std::nullopt;
    }
    mXml = *copy;
    return {};
}

void ExtendedTicket::setPaperName(const QString &name)
{
    if (mPaper != name) {
        mPaper = name;
        mXml = rewritten(mXml, kPaperKey, mPaper);
    }
}

std::optional<ColourMode> ExtendedTicket::colourMode() const
{
    // Panels ask in this order as well: with both texts it is black and red.
    if (mColour && mColour->contains(kBlackAndRedText)) {
        return ColourMode::BlackAndRed;
    }
    return mColour && mColour->contains(kBlackText) ? std::optional(ColourMode::Black)
                                                    : std::nullopt;
}

void ExtendedTicket::setColourMode(std::optional<ColourMode> mode)
{
    if (mode == colourMode()) {
        return;
    }
    mColour.reset();
    if (mode) {
        mColour = *mode == ColourMode::BlackAndRed ? kBlackAndRedText : kBlackText;
    }
    mXml = rewritten(mXml, kColourKey, mColour);
}

} // namespace dialog

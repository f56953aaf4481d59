// SPDX-License-Identifier: Apache-2.0
#include "TestDocuments.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct Message
{
    QString context;
    QString source;
    QString comment;
    QString type;
    QStringList forms;

    QString key() const { return context + u'|' + source + u'|' + comment; }
};

Message messageOf(QXmlStreamReader &xml, const QString &context)
{
    Message message{context, {}, {}, {}, {}};
    while (!(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == u"message")
           && !xml.atEnd()) {
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            message.comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.type = xml.attributes().value(QLatin1String("type")).toString();
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            message.forms = {text};
        }
    }
    return message;
}

/// The plural forms of a message stand one below the other.
void splitForms(Message &message)
{
    if (message.source.contains(QLatin1String("%n"))) {
        const QStringList lines = message.forms.join(QString()).split(u'\n');
        message.forms.clear();
        for (const QString &line : lines) {
            if (!line.trimmed().isEmpty()) {
                message.forms << line.trimmed();
            }
        }
    }
    if (message.forms.isEmpty()) {
        message.forms << QString();
    }
}

std::vector<Message> messagesIn(const QString &path)
{
    std::vector<Message> messages;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"message") {
            messages.push_back(messageOf(xml, context));
            splitForms(messages.back());
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

std::vector<QString> keysIn(const QString &path)
{
    std::vector<QString> keys;
    for (const Message &message : messagesIn(path)) {
        keys.push_back(message.key());
    }
    return keys;
}

/// What `pattern` finds in `text`, in the order of the alphabet.
QStringList found(const QString &text, const QString &pattern)
{
    QStringList hits;
    const QRegularExpression expression(pattern, QRegularExpression::UseUnicodePropertiesOption);
    for (auto hit = expression.globalMatch(text); hit.hasNext();) {
        hits << hit.next().captured();
    }
    hits.sort();
    return hits;
}

/// The messages of which `isBad` is true for a form of the translation.
template <class IsBad> QStringList bad(const std::vector<Message> &messages, IsBad isBad)
{
    QStringList list;
    for (const Message &message : messages) {
        for (const QString &form : message.forms) {
            if (isBad(message, form)) {
                list << message.key() + QStringLiteral(" = ") + form;
            }
        }
    }
    return list;
}

/// The messages that lose or add something that `pattern` finds in the source.
QStringList changed(const std::vector<Message> &messages, const QString &pattern)
{
    return bad(messages, [&pattern](const Message &message, const QString &form) {
        return found(form, pattern) != found(message.source, pattern);
    });
}

QString tableOf(const QString &language)
{
    return QStringLiteral(SOURCE_DIR "/resources/strings/dialog_%1.ts").arg(language);
}

class DialogStrings : public testing::TestWithParam<const char *>
{
protected:
    const QString language = QLatin1String(GetParam());
    const std::vector<Message> messages = messagesIn(tableOf(language));
};

std::string languageOf(const testing::TestParamInfo<const char *> &test)
{
    return test.param;
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogStrings, testing::Values("en", "de", "fr", "es", "ja"),
                         languageOf);

TEST_P(DialogStrings, HaveNoMessageThatIsUnfinishedOrGoneFromTheSources)
{
    ASSERT_FALSE(messages.empty());
    EXPECT_THAT(
        bad(messages,
            [](const Message &message, const QString &) { return !message.type.isEmpty(); }),
        IsEmpty());
}

TEST_P(DialogStrings, HaveNoEmptyMessage)
{
    EXPECT_THAT(bad(messages,
                    [](const Message &, const QString &form) { return form.trimmed().isEmpty(); }),
                IsEmpty());
}

TEST_P(DialogStrings, HaveAFormForEachNumberThatTheLanguageTellsApart)
{
    const size_t forms = language == QLatin1String("ja") ? 1 : 2;
    int counted = 0;
    for (const Message &message : messages) {
        const bool counts = message.source.contains(QLatin1String("%n"));
        counted += counts ? 1 : 0;
        EXPECT_EQ(size_t(message.forms.size()), counts ? forms : 1) << message.key().toStdString();
    }
    EXPECT_EQ(counted, 3);
}

TEST_P(DialogStrings, KeepEveryPlaceForAValue)
{
    EXPECT_THAT(changed(messages, QStringLiteral("%(L?[0-9]|n)")), IsEmpty());
}

TEST_P(DialogStrings, HaveAKeyForTheFieldsAndButtonsThatHaveOneInEnglish)
{
    EXPECT_THAT(bad(messages,
                    [](const Message &message, const QString &form) {
                        const QString key = QStringLiteral("&\\w");
                        return found(form, key).size() != found(message.source, key).size();
                    }),
                IsEmpty());
}

TEST_P(DialogStrings, KeepTheNamesOfOptionsFilesAndFormats)
{
    EXPECT_THAT(changed(messages, QStringLiteral("--[a-z][a-z-]*|-o |\\*?\\.(png|json|plugin)\\b")),
                IsEmpty());
    EXPECT_THAT(changed(messages,
                        QStringLiteral("qt6-[a-z-]+|chmod -R go-w \"%2\"|CvBrightness=5"
                                       "|Custom\\.60x100mm")),
                IsEmpty());
}

TEST_P(DialogStrings, EndAsTheSourceDoesWhereTheEndSaysWhatItIs)
{
    EXPECT_THAT(bad(messages,
                    [](const Message &message, const QString &form) {
                        return message.source.endsWith(u':') != form.endsWith(u':')
                            || message.source.endsWith(QLatin1String("..."))
                            != form.endsWith(QLatin1String("..."))
                            || message.source.endsWith(u'\n') != form.endsWith(u'\n');
                    }),
                IsEmpty());
}

/// The texts of the sources as lupdate collects them now.
class TextsOfTheSources : public testing::Test
{
protected:
    std::vector<QString> collect(const QStringList &more = {})
    {
        QProcess lupdate;
        lupdate.start(QStringLiteral(LUPDATE),
                      more
                          + QStringList{QStringLiteral("-I"), QStringLiteral(SOURCE_DIR),
                                        QStringLiteral(SOURCE_DIR "/dialog"),
                                        QStringLiteral(SOURCE_DIR "/loading"),
                                        QStringLiteral("-ts"), table});
        EXPECT_TRUE(lupdate.waitForFinished(60000)) << lupdate.errorString().toStdString();
        EXPECT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().toStdString();
        return keysIn(table);
    }

    QTemporaryDir folder;
    const QString table = folder.filePath(QStringLiteral("sources.ts"));
};

TEST_F(TextsOfTheSources, AreTranslatedAllIntoEachLanguageAndNothingElseIs)
{
    const std::vector<QString> texts = collect();
    ASSERT_GT(texts.size(), 200U);
    for (const char *language : {"de", "fr", "es", "ja"}) {
        EXPECT_THAT(keysIn(tableOf(QLatin1String(language))),
                    testing::UnorderedElementsAreArray(texts))
            << language << ": run the target update_dialog_strings and translate what is new";
    }
}

TEST_F(TextsOfTheSources, HaveTheirPluralFormsInEnglishToo)
{
    EXPECT_THAT(keysIn(tableOf(QStringLiteral("en"))),
                testing::UnorderedElementsAreArray(collect({QStringLiteral("-pluralonly")})));
}

// A context that no class has is never asked for: its texts would stay English for ever.
TEST_F(TextsOfTheSources, BelongToClassesOfTheDialog)
{
    QMap<QString, QString> headers;
    for (const char *folderName : {"dialog", "loading"}) {
        const QString name = QLatin1String(folderName);
        for (QDirIterator files(QStringLiteral(SOURCE_DIR "/") + name, {QStringLiteral("*.h")});
             files.hasNext();) {
            QFile file(files.next());
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            headers[name] += QString::fromUtf8(file.readAll());
        }
    }
    for (const QString &key : collect()) {
        const QString name = key.section(u'|', 0, 0);
        const QRegularExpression owner(
            QStringLiteral("(class|struct) %1\\b").arg(name.section(QLatin1String("::"), 1)));
        EXPECT_TRUE(headers.value(name.section(QLatin1String("::"), 0, 0)).contains(owner))
            << name.toStdString();
    }
}

/// The program itself, as a user of another language starts it.
class StringsOfTheProgram : public DocumentFolder
{
protected:
    static std::string complaintIn(const QString &languages, const QStringList &arguments);
};

std::string StringsOfTheProgram::complaintIn(const QString &languages, const QStringList &arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"), languages);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(PROGRAM), arguments);
    EXPECT_TRUE(program.waitForFinished(60000)) << program.errorString().toStdString();
    return program.readAllStandardError().toStdString();
}

TEST_F(StringsOfTheProgram, AreInTheUsersLanguage)
{
    const QStringList arguments{QStringLiteral("--no-dialog")};
    EXPECT_THAT(complaintIn(QStringLiteral("de"), arguments), HasSubstr("Namen eines Dokuments"));
    EXPECT_THAT(complaintIn(QStringLiteral("fr_CA"), arguments), HasSubstr("nom d’un document"));
    EXPECT_THAT(complaintIn(QStringLiteral("es"), arguments), HasSubstr("nombre del documento"));
    EXPECT_THAT(complaintIn(QStringLiteral("ja"), arguments), HasSubstr("印刷する文書の名前"));
    EXPECT_THAT(complaintIn(QStringLiteral("en_GB:de"), arguments),
                HasSubstr("name of a document"));
    EXPECT_THAT(complaintIn(QStringLiteral("it"), arguments), HasSubstr("name of a document"));
}

TEST_F(StringsOfTheProgram, CountOnePageWithoutAnS)
{
    const QStringList arguments{write(QStringLiteral("label.pdf"), pdfOfPages(1)),
                                QStringLiteral("--no-dialog"),
                                QStringLiteral("--pages"),
                                QStringLiteral("9"),
                                QStringLiteral("--output"),
                                QStringLiteral("/nonexistent")};
    for (const char *languages : {"en", "it", ""}) {
        EXPECT_THAT(complaintIn(QLatin1String(languages), arguments), HasSubstr("only 1 page\n"));
    }
    EXPECT_THAT(complaintIn(QStringLiteral("de"), arguments), HasSubstr("nur 1 Seite\n"));
}

} // namespace

// SPDX-License-Identifier: Apache-2.0
#include <QDirIterator>
#include <QFileInfo>

#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {

TEST(PanelFiles, NobodyButTheOwnerMayWriteToTheResources)
{
    const QString resources = QStringLiteral(BUNDLE_DIR "/Resources");
    QStringList writable;
    int count = 0;
    for (QDirIterator files(resources, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                            QDirIterator::Subdirectories);
         files.hasNext(); ++count) {
        const QFileInfo file(files.next());
        if (file.permission(QFile::WriteGroup) || file.permission(QFile::WriteOther)) {
            writable << file.filePath();
        }
    }
    EXPECT_THAT(writable, IsEmpty());
    EXPECT_GE(count, 11); // the description, five folders, five tables
    EXPECT_FALSE(QFileInfo(resources).permission(QFile::WriteGroup));
}

} // namespace

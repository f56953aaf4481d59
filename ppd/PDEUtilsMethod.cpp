// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEUtilsMethod.h"

#include "platform/PointFromString.h"
#include "platform/TextEncodings.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>

#include <algorithm>

namespace {

void setTextColor(QWidget *item, QPalette::ColorRole role, QPalette::ColorGroup group)
{
    const QColor color = QApplication::palette(item).color(group, role);
    QPalette palette = item->palette();
    palette.setColor(QPalette::Active, role, color);
    palette.setColor(QPalette::Inactive, role, color);
    item->setPalette(palette);
}

} // namespace

bool PDEUtilsMethod13::runningOn105OrLater()
{
    return true;
}

std::optional<QString> PDEUtilsMethod13::ppdAttrValStr(ppd_file_t *ppd, const char *cStrKey)
{
    const ppd_attr_t *attribute = ppdFindAttr(ppd, cStrKey, nullptr);
    return attribute ? platform::decodeSystem(attribute->value) : std::nullopt;
}

std::optional<QString> PDEUtilsMethod13::ppdOptionTextStr(ppd_file_t *ppd, const char *cStrKey)
{
    const ppd_option_t *option = ppdFindOption(ppd, cStrKey);
    return option ? platform::decodeSystem(option->text) : std::nullopt;
}

bool PDEUtilsMethod13::isSupportedItem(ppd_file_t *ppd, const char *cStrKey)
{
    // Meant: the value "False" answers yes.
    return ppdAttrValStr(ppd, cStrKey) == QStringLiteral("False");
}

QPointF PDEUtilsMethod13::originItem(ppd_file_t *ppd, const char *cStrKey)
{
    const std::optional<QString> value = ppdAttrValStr(ppd, cStrKey);
    return value ? platform::pointFromString(*value) : QPointF();
}

std::shared_ptr<ChoiceList> PDEUtilsMethod13::arrayFromPPDOption(ppd_option_t *option)
{
    if (!option) {
        return nullptr;
    }
    auto choices = std::make_shared<ChoiceList>();
    choices->reserve(size_t(std::max(option->num_choices, 0)));
    for (int i = 0; i < option->num_choices; ++i) {
        choices->push_back(PDEChoice::choiceWithChoice(&option->choices[i]));
    }
    return choices;
}

std::shared_ptr<PDEChoice>
PDEUtilsMethod13::findChoiceForString(const std::optional<QString> &string,
                                      const ChoiceList *choices)
{
    if (!choices) {
        return nullptr;
    }
    const auto matches = [&string](const std::shared_ptr<PDEChoice> &choice) {
        return string ? choice->ppdTitle() == string : choice->isDefaultChoice();
    };
    const auto found = std::find_if(choices->begin(), choices->end(), matches);
    return found != choices->end() ? *found : nullptr;
}

std::optional<QString> PDEUtilsMethod13::newOptionTitle(const ppd_option_t *option)
{
    return option ? platform::decodeUtf8(option->text) : std::nullopt;
}

std::optional<QString> PDEUtilsMethod13::newChoiceTitle(const ppd_choice_t *choice)
{
    return choice ? platform::decodeUtf8(choice->text) : std::nullopt;
}

void PDEUtilsMethod13::setEnabledForText(int enabled, QWidget *item)
{
    const auto group = enabled == 1 ? QPalette::Active : QPalette::Disabled;
    if (qobject_cast<QLabel *>(item)) {
        setTextColor(item, QPalette::WindowText, group);
    } else if (qobject_cast<QLineEdit *>(item)) {
        setTextColor(item, QPalette::Text, group);
    }
}

// SPDX-License-Identifier: Apache-2.0
#include "controls/PDEFormatter.h"
#include "plugin/FormatterInspection.h"

#include <memory>

namespace {

class InspectedFormatter : public FormatterInspection
{
public:
    explicit InspectedFormatter(std::unique_ptr<PDEFormatter> formatter)
        : mFormatter(std::move(formatter))
    { }

    const void *address() const override { return mFormatter.get(); }
    void set(const Settings &settings) override;
    bool accepts(const Edit &edit) override;
    QString textFor(const QVariant &value) const override
    {
        return mFormatter->stringForObjectValue(value);
    }
    QString valueFor(const QString &text) const override;

private:
    template <class Argument, class Value>
    void apply(const std::optional<Value> &value, void (PDEFormatter::*setter)(Argument))
    {
        if (value) {
            (mFormatter.get()->*setter)(*value);
        }
    }

    std::unique_ptr<PDEFormatter> mFormatter;
};

void InspectedFormatter::set(const Settings &settings)
{
    apply(settings.maxLength, &PDEFormatter::setMaxLength);
    apply(settings.maxValue, &PDEFormatter::setMaxValue);
    apply(settings.minValue, &PDEFormatter::setMinValue);
    apply(settings.validityMaxValue, &PDEFormatter::setValidityMaxValue);
    apply(settings.validityMinValue, &PDEFormatter::setValidityMinValue);
    apply(settings.textStyle, &PDEFormatter::setTextStyle);
    apply(settings.formatString, &PDEFormatter::setFormatString);
    if (const auto &object = settings.notificationObject) {
        mFormatter->setNotificationObject(*object ? platform::NotificationObject(**object)
                                                  : platform::NotificationObject());
    }
    apply(settings.addInvalidCharacter, &PDEFormatter::addInvalidCharacter);
    apply(settings.removeInvalidCharacter, &PDEFormatter::removeInvalidCharacter);
}

bool InspectedFormatter::accepts(const Edit &edit)
{
    std::optional<QString> proposed = edit.proposed;
    TextRange range{edit.proposedRange.location, edit.proposedRange.length};
    return mFormatter->isPartialStringValid(
        &proposed, &range, edit.original, {edit.originalRange.location, edit.originalRange.length},
        nullptr);
}

QString InspectedFormatter::valueFor(const QString &text) const
{
    QVariant value;
    mFormatter->getObjectValue(&value, text, nullptr);
    return value.toString();
}

std::unique_ptr<PDEFormatter> formatterFor(const FormatterStart &start)
{
    if (start.format) {
        return start.style ? std::make_unique<PDEFormatter>(*start.format, *start.style)
                           : std::make_unique<PDEFormatter>(*start.format);
    }
    return start.style ? std::make_unique<PDEFormatter>(*start.style)
                       : std::make_unique<PDEFormatter>();
}

} // namespace

extern "C" Q_DECL_EXPORT FormatterInspection *
PanelInspection_makeFormatter(const FormatterStart &start)
{
    return new InspectedFormatter(formatterFor(start));
}

// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintJob.h"

namespace dialog {

OptionChoices PrintJob::options() const
{
    OptionChoices options = settings.jobOptions();
    if (document.pages) {
        std::erase_if(options, [](const OptionChoice &pair) {
            return pair.option == QLatin1String("page-ranges")
                || pair.option == QLatin1String("print-scaling");
        });
    }
    return options;
}

} // namespace dialog

// SPDX-License-Identifier: Apache-2.0
#include "controls/InputControls.h"

#include "controls/CellButton.h"
#include "controls/PDEButtonCell.h"
#include "controls/PDETextField.h"
#include "platform/ViewHost.h"

namespace controls {

void registerInputControls()
{
    platform::registerWidgetClass(QStringLiteral("PDETextField13_v300_"),
                                  [](QWidget *parent) { return new PDETextField13_v300_(parent); });
    platform::registerWidgetClass(QStringLiteral("PDEButtonCell13_v300_"), [](QWidget *parent) {
        return new CellButton(std::make_unique<PDEButtonCell13_v300_>(), parent);
    });
}

} // namespace controls

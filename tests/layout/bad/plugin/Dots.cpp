#include "plugin/../graphics_panel/GraphicsPDE.h"

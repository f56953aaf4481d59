#include "graphics_panel/GraphicsPDE.h"

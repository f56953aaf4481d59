#include "plugin/BasePDE.h"

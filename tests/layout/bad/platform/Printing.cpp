#include <cups/cups.h>

// SPDX-License-Identifier: Apache-2.0
// The program as it is, up to its first paint.
#include "FirstPaint.h"
#include "dialog/Application.h"

int main(int argc, char **argv)
{
    endAtFirstPaint();
    return dialog::Application::run(argc, argv);
}

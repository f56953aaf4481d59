// SPDX-License-Identifier: Apache-2.0
#include "dialog/Application.h"

int main(int argc, char **argv)
{
    return dialog::Application::run(argc, argv);
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Waits for what the environment variable START_UNTIL names, an object name of a widget ("window"
/// for any top-level window): when it has been painted for the first time and the window's pixels
/// are on their way to the screen, prints the monotonic time in nanoseconds and ends the program.
///
/// To be called before the QApplication is made.
void endAtFirstPaint();

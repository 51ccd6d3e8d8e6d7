// SPDX-License-Identifier: MIT
#pragma once

class DesktopWidgets;

/// A whole run of the program with windows, from the name it was started under to the end of its event loop.
/// Gives the exit status where the program ends without EndProgram.
int RunProgram(int argc, char** argv, DesktopWidgets& desktop);

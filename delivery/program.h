// SPDX-License-Identifier: MIT
//
// The start of a program that can be its own worker.
#pragma once

namespace delivery
{

/// Called once, ahead of everything else: names of files are UTF-8 where the system leaves it open,
/// whatever the locale is, and a write that fails is no end of the process. In the platform files.
void prepareProgram();

/// Called once, as soon as there is an application object: what the system says is in English,
/// where it lets itself be asked, by which words/ knows it. In the platform files.
void prepareApplication();

/// Whether the program was started as one of its own workers.
bool isWorker(int argc, char **argv);

/// Checks and converts sources for whoever started it. What comes back is the exit code.
int beWorker(int argc, char **argv);

} // namespace delivery

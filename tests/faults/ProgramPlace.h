#pragma once

// Whether the code is the program's own, and not that of one of its libraries.
bool isInProgram(const void *code);

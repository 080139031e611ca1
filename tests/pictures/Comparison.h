#pragma once

class QDir;

// Draws a sheet of each scene, light and in English, and compares it with the kept one of
// its name. Those that differ are left in the other folder, each beside a picture of what
// differs. 0 when all are alike.
int compareSheets(const QDir &kept, const QDir &drawn);

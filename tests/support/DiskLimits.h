#pragma once

#include <QtCore/QString>

#include <memory>

// What a test's other process does to itself to run out of room or of rights. A
// process that may not do it ends with notPermitted.
namespace DiskLimits {

constexpr int notPermitted = 77;

// A file system of that size, seen by this process alone.
void mount(const QString &folder, qint64 bytes);

// Leaves that much room on it, by one file named filling.
void fill(const QString &folder, qint64 room);

// No file may grow beyond that, until the next call; a write beyond fails.
void limitFiles(qint64 bytes);

// Goes on as a user without any rights, if this one has some.
void dropRights();

// While it lives, no file of this process grows beyond.
class FileLimit
{
public:
    explicit FileLimit(qint64 bytes);
    ~FileLimit();
    Q_DISABLE_COPY_MOVE(FileLimit) // one limit, one release

private:
    struct Former;
    std::unique_ptr<Former> m_former;
};

// A pipe of that name; false where files are no pipes.
bool makePipe(const QString &fileName);

} // namespace DiskLimits

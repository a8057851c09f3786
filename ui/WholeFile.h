#pragma once
// Writing a file whole: the bytes go to a temporary file beside it, which takes
// the name only once every byte is out, so a write that fails (a full disk)
// leaves the previous file as it was. Safe on any thread.

#include <QSaveFile>

// The flush is checked on its own: commit() does not see a write error that
// shows up only while the buffered bytes are flushed.
inline bool writeWholeFile(const QString& path, const char* data, qint64 size) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data, size) == size && file.flush() && file.commit();
}

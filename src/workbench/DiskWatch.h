// Tells when files that are open may have changed on disk.
#pragma once
#include <QtCore/QFileSystemWatcher>
#include <QtCore/QTimer>

#include <filesystem>
#include <functional>
#include <vector>

namespace glotta {

class DiskWatch : public QObject {
public:
    // `check` runs once for changes that come together, with no modal window open.
    DiskWatch(QObject* parent, std::function<void()> check);
    void Watch(const std::vector<std::filesystem::path>& files);
    void Forget(const std::vector<std::filesystem::path>& files);
    void CheckSoon() { timer_.start(); }

private:
    QFileSystemWatcher watcher_;
    QTimer timer_;
    QStringList replaced_; // written by renaming: to be watched anew
};

} // namespace glotta

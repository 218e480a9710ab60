#include "workbench/DiskWatch.h"

#include "platform/Files.h"
#include "workbench/QtText.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QApplication>

namespace glotta {
namespace {

constexpr int SettleTime = 300; // milliseconds; programs write in several steps

QStringList Names(const std::vector<std::filesystem::path>& files) {
    QStringList names;
    for (const auto& file : files)
        names << Q(PathText(file));
    return names;
}

} // namespace

DiskWatch::DiskWatch(QObject* parent, std::function<void()> check) : QObject(parent) {
    timer_.setSingleShot(true);
    timer_.setInterval(SettleTime);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this](const QString& file) {
        replaced_ << file;
        timer_.start();
    });
    connect(&timer_, &QTimer::timeout, this, [this, check = std::move(check)] {
        if (QApplication::activeModalWidget()) return timer_.start();
        for (const QString& file : replaced_)
            if (QFileInfo::exists(file) && !watcher_.files().contains(file)) watcher_.addPath(file);
        replaced_.clear();
        check();
    });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) timer_.start();
    });
}

void DiskWatch::Watch(const std::vector<std::filesystem::path>& files) {
    if (const QStringList names = Names(files); !names.isEmpty()) watcher_.addPaths(names);
}

void DiskWatch::Forget(const std::vector<std::filesystem::path>& files) {
    if (const QStringList names = Names(files); !names.isEmpty()) watcher_.removePaths(names);
}

} // namespace glotta

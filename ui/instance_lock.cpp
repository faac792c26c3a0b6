#include "ui/instance_lock.h"

#include <QCryptographicHash>
#include <QDir>

#include "ui/qt_text.h"

namespace store {
namespace {

QString LockPath(const std::string& programPath) {
  const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString folder = runtimeFolder.isEmpty() ? QDir::tempPath() : runtimeFolder;
  // Where users share a folder, nobody can clear away what another one's crash has left.
  const QByteArray who = programPath.c_str() + QDir::homePath().toUtf8();
  const QString name = QCryptographicHash::hash(who, QCryptographicHash::Sha1).toHex();
  return folder + "/store_client-" + name + ".lock";
}

}  // namespace

InstanceLock::InstanceLock(const std::string& programPath) : file_(LockPath(programPath)) {
  file_.setStaleLockTime(0);  // a run may last for days; only a dead one gives way
}

bool InstanceLock::Holds() { return file_.isLocked() || file_.tryLock(0); }

}  // namespace store

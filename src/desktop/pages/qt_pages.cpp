#include "desktop/pages/qt_pages.h"

#include <QFile>
#include <QNetworkInterface>
#include <QRandomGenerator>

namespace pawnfield {

namespace {

// A flood waits no longer than this, and the loop has its other events between two batches.
constexpr std::size_t kMostWaiting = 8192;
constexpr std::size_t kBatch = 64;

// Everything that is served, by path. Nothing else of this machine can be asked for.
std::map<std::string, PageFile> ServedFiles() {
  const struct {
    const char* path;
    const char* file;
    const char* type;
  } served[] = {{"/", "phone.html", "text/html; charset=utf-8"},
                {"/host", "host.html", "text/html; charset=utf-8"},
                {"/scores", "scores.html", "text/html; charset=utf-8"},
                {"/pages.css", "pages.css", "text/css; charset=utf-8"},
                {"/link.js", "link.js", "text/javascript; charset=utf-8"},
                {"/phone.js", "phone.js", "text/javascript; charset=utf-8"},
                {"/host.js", "host.js", "text/javascript; charset=utf-8"},
                {"/scores.js", "scores.js", "text/javascript; charset=utf-8"}};
  std::map<std::string, PageFile> files;
  for (const auto& [path, name, type] : served) {
    QFile file(QString(":/pages/") + name);
    if (file.open(QIODevice::ReadOnly)) files[path] = {type, file.readAll().toStdString()};
  }
  return files;
}

}  // namespace

QtPages::QtPages() : server_(ServedFiles(), [this](PageEvent event) { Take(std::move(event)); }) {}

std::vector<std::string> QtPages::Addresses() const {
  std::vector<std::string> addresses, newer;
  for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
    const bool old = address.protocol() == QAbstractSocket::IPv4Protocol;
    // A browser opens no link-local address of the newer kind: it would need the name of the phone's own interface.
    if (!old && address.isLinkLocal()) continue;
    std::string text = address.toString().toStdString();
    if (IsLocalAddress(text)) (old ? addresses : newer).push_back(std::move(text));
  }
  // What every phone reaches stands first.
  addresses.insert(addresses.end(), newer.begin(), newer.end());
  return addresses;
}

void QtPages::Close() {
  server_.Close();
  const std::scoped_lock lock(mutex_);
  waiting_.clear();
}

std::string QtPages::Secret(std::size_t bytes) {
  std::string secret;
  for (std::size_t i = 0; i < bytes; ++i) {
    constexpr const char* kDigits = "0123456789abcdef";
    const quint32 byte = QRandomGenerator::system()->bounded(256U);
    secret += kDigits[byte >> 4U];
    secret += kDigits[byte & 0xFU];
  }
  return secret;
}

void QtPages::Take(PageEvent event) {
  const std::scoped_lock lock(mutex_);
  // That a page is gone is never lost.
  if (waiting_.size() >= kMostWaiting && event.Kind != PageEventKind::Closed) return;
  waiting_.push_back(std::move(event));
  if (!std::exchange(posted_, true))
    QMetaObject::invokeMethod(
        &here_, [this] { HandOver(); }, Qt::QueuedConnection);
}

void QtPages::HandOver() {
  std::deque<PageEvent> batch;
  {
    const std::scoped_lock lock(mutex_);
    while (!waiting_.empty() && batch.size() < kBatch) {
      batch.push_back(std::move(waiting_.front()));
      waiting_.pop_front();
    }
    posted_ = !waiting_.empty();
    if (posted_)
      QMetaObject::invokeMethod(
          &here_, [this] { HandOver(); }, Qt::QueuedConnection);
  }
  for (const PageEvent& event : batch) {
    if (OnEvent) OnEvent(event);
  }
}

}  // namespace pawnfield

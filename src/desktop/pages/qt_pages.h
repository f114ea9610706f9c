// The port to the local network on this desktop: the server beside, and what it hears brought to the event loop.
#pragma once

#include <QObject>
#include <deque>
#include <mutex>

#include "desktop/pages/page_server.h"
#include "platform/pages.h"

namespace pawnfield {

class QtPages : public Pages {
 public:
  QtPages();

  std::vector<std::string> Addresses() const override;
  int Open(const PagesPlace& place) override { return server_.Open(place); }
  void Close() override;
  void Send(std::uint64_t page, const std::string& text) override { server_.Send(page, text); }
  void Drop(std::uint64_t page) override { server_.Drop(page); }
  void Answer(std::uint64_t request, int status, const std::string& text) override {
    server_.Answer(request, status, text);
  }
  void SendOsc(const OscMessage& message) override { server_.SendOsc(message); }
  std::int64_t NowUs() const override { return PageServer::NowUs(); }
  std::string Secret(std::size_t bytes) override;

 private:
  // On the server's thread.
  void Take(PageEvent event);
  // On the event loop's.
  void HandOver();

  std::mutex mutex_;
  std::deque<PageEvent> waiting_;
  bool posted_ = false;
  // What is posted to it dies with it.
  QObject here_;
  PageServer server_;
};

}  // namespace pawnfield

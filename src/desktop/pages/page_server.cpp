#include "desktop/pages/page_server.h"

#include <utility>
// The network's library uses std::exchange without asking for it.
#include <boost/asio.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <chrono>
#include <deque>
#include <optional>
#include <thread>
#include <vector>

#include "desktop/pages/osc_text.h"
#include "platform/ports.h"

namespace pawnfield {

namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using Tcp = asio::ip::tcp;
using Udp = asio::ip::udp;
using Error = boost::system::error_code;
using Request = http::request<http::string_body>;
using Response = http::response<http::string_body>;

constexpr std::size_t kMostWaiting = 256;
constexpr const char* kLink = "/link";
constexpr const char* kControl = "/control/";

bool IsLocal(asio::ip::address address) {
  if (address.is_v6() && address.to_v6().is_v4_mapped()) {
    address = asio::ip::make_address_v4(asio::ip::v4_mapped, address.to_v6());
  }
  if (address.is_loopback()) return true;
  if (address.is_v6()) return address.to_v6().is_link_local() || (address.to_v6().to_bytes()[0] & 0xFEU) == 0xFCU;
  const auto bytes = address.to_v4().to_bytes();
  return bytes[0] == 10 || (bytes[0] == 172 && (bytes[1] & 0xF0U) == 16) || (bytes[0] == 192 && bytes[1] == 168) ||
         (bytes[0] == 169 && bytes[1] == 254);
}

// A connection whose end waits for nobody: a page that is cut off, or says goodbye, is gone at once, whether or not the
// other end closes too.
class PageStream : public beast::tcp_stream {
 public:
  explicit PageStream(beast::tcp_stream&& stream) : beast::tcp_stream(std::move(stream)) {}
};

template <typename Handler>
void async_teardown(beast::role_type, PageStream& stream, Handler&& handler) {
  stream.close();
  asio::post(stream.get_executor(), beast::bind_front_handler(std::forward<Handler>(handler), Error()));
}

// Counts what comes within a second; false for one too many.
class Pace {
 public:
  bool Allows() {
    const auto now = std::chrono::steady_clock::now();
    if (now - begun_ >= std::chrono::seconds(1)) {
      begun_ = now;
      count_ = 0;
    }
    return ++count_ <= kMessagesPerSecond;
  }

 private:
  std::chrono::steady_clock::time_point begun_ = std::chrono::steady_clock::now();
  int count_ = 0;
};

// What the connections ask of the server that has accepted them. All on its thread.
class Hub {
 public:
  virtual ~Hub() = default;
  virtual const std::map<std::string, PageFile>& Files() const = 0;
  // "192.168.1.5:8473", which a request must be meant for.
  virtual const std::string& Name() const = 0;
  virtual bool TakesControl() const = 0;
  virtual std::uint64_t NextNumber() = 0;
  virtual void Deliver(PageEvent event) = 0;
  virtual void Leave(const std::string& address) = 0;
};

// A place among the connections that are allowed, given back when the connection is gone.
class Place {
 public:
  Place(Hub& hub, std::string address) : hub_(hub), address_(std::move(address)) {}
  ~Place() { hub_.Leave(address_); }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  const std::string& Address() const { return address_; }

 private:
  Hub& hub_;
  std::string address_;
};

// A page that is linked: messages both ways until it goes, says too much, or doesn't listen.
class Link : public std::enable_shared_from_this<Link> {
 public:
  Link(Hub& hub, beast::tcp_stream&& stream, std::unique_ptr<Place> place, std::uint64_t number)
      : hub_(hub),
        place_(std::move(place)),
        number_(number),
        stream_(PageStream(std::move(stream))),
        silence_(stream_.get_executor()) {}

  std::uint64_t Number() const { return number_; }
  std::function<void(std::uint64_t)> OnGone;

  void Accept(const Request& request) {
    beast::get_lowest_layer(stream_).expires_never();
    // A second for the handshakes at both ends, of which a page's goodbye is one.
    websocket::stream_base::timeout timeouts{std::chrono::seconds(1), std::chrono::seconds(20), true};
    stream_.set_option(timeouts);
    stream_.read_message_max(kMessageBytes);
    stream_.async_accept(request, [self = shared_from_this()](const Error& error) {
      if (error) return self->Gone();
      self->opened_ = true;
      self->Tell(PageEventKind::Opened, {});
      self->AwaitFirstWord();
      self->Read();
    });
  }

  void Send(const std::string& text) {
    // Before the link stands its handshake is being written, and nothing may be beside it.
    if (closing_ || !opened_) return;
    // Who doesn't take what he is sent isn't waited for.
    if (waiting_.size() >= kMostWaiting) return Cut();
    waiting_.push_back(text);
    if (waiting_.size() == 1) Write();
  }

  void CloseAfterwards() {
    if (!opened_) return Cut();
    closing_ = true;
    if (waiting_.empty()) SayGoodbye();
  }

 private:
  void Tell(PageEventKind kind, std::string text) {
    hub_.Deliver({kind, number_, place_->Address(), std::move(text), {}, PageServer::NowUs()});
  }

  void AwaitFirstWord() {
    silence_.expires_after(std::chrono::seconds(kFirstWordSeconds));
    silence_.async_wait([self = shared_from_this()](const Error& error) {
      if (!error) self->Cut();
    });
  }

  void Read() {
    stream_.async_read(buffer_, [self = shared_from_this()](const Error& error, std::size_t) { self->Took(error); });
  }

  void Took(const Error& error) {
    if (error || closing_) return Gone();
    silence_.cancel();
    if (!pace_.Allows() || !stream_.got_text()) return Cut();
    Tell(PageEventKind::Message, beast::buffers_to_string(buffer_.data()));
    buffer_.consume(buffer_.size());
    Read();
  }

  void Write() {
    stream_.text(true);
    stream_.async_write(asio::buffer(waiting_.front()), [self = shared_from_this()](const Error& error, std::size_t) {
      if (error) return self->Gone();
      self->waiting_.pop_front();
      if (!self->waiting_.empty()) return self->Write();
      if (self->closing_) self->SayGoodbye();
    });
  }

  void SayGoodbye() {
    stream_.async_close(websocket::close_code::normal, [self = shared_from_this()](const Error&) { self->Gone(); });
  }

  void Cut() {
    closing_ = true;
    beast::get_lowest_layer(stream_).close();
    Gone();
  }

  void Gone() {
    silence_.cancel();
    if (std::exchange(gone_, true)) return;
    if (opened_) Tell(PageEventKind::Closed, {});
    if (OnGone) OnGone(number_);
  }

  Hub& hub_;
  std::unique_ptr<Place> place_;
  const std::uint64_t number_;
  websocket::stream<PageStream> stream_;
  asio::steady_timer silence_;
  beast::flat_buffer buffer_{kMessageBytes + 1024};
  std::deque<std::string> waiting_;
  Pace pace_;
  bool opened_ = false, closing_ = false, gone_ = false;
};

// One request: a file of the table, a control, or the beginning of a link.
class Visit : public std::enable_shared_from_this<Visit> {
 public:
  Visit(Hub& hub, Tcp::socket&& socket, std::unique_ptr<Place> place)
      : hub_(hub), place_(std::move(place)), stream_(std::move(socket)), patience_(stream_.get_executor()) {}

  std::function<void(beast::tcp_stream&&, std::unique_ptr<Place>, Request&&)> OnLink;
  std::function<void(std::uint64_t, std::shared_ptr<Visit>)> OnControl;
  // The program hasn't answered in time.
  std::function<void(std::uint64_t)> OnPatienceEnds;

  void Begin() {
    parser_.header_limit(kHeaderBytes);
    parser_.body_limit(kBodyBytes);
    stream_.expires_after(std::chrono::seconds(kFirstWordSeconds));
    http::async_read(stream_, buffer_, parser_, [self = shared_from_this()](const Error& error, std::size_t) {
      if (!error) self->Serve();
    });
  }

  void Reply(http::status status, const std::string& type, std::string body, bool head = false) {
    patience_.cancel();
    response_ = Response(status, 11);
    response_.set(http::field::content_type, type);
    response_.set(http::field::cache_control, "no-store");
    response_.set(http::field::connection, "close");
    response_.set("X-Content-Type-Options", "nosniff");
    response_.set("X-Frame-Options", "DENY");
    response_.set("Referrer-Policy", "no-referrer");
    // Older phones don't take the link for a part of 'self'.
    response_.set("Content-Security-Policy", "default-src 'self'; connect-src 'self' ws://" + hub_.Name() +
                                                 "; frame-ancestors 'none'; base-uri 'none'; form-action 'none'");
    response_.content_length(body.size());
    if (!head) response_.body() = std::move(body);
    stream_.expires_after(std::chrono::seconds(kFirstWordSeconds));
    http::async_write(stream_, response_, [self = shared_from_this()](const Error&, std::size_t) {
      Error ignored;
      self->stream_.socket().shutdown(Tcp::socket::shutdown_send, ignored);
    });
  }

 private:
  void Refuse(http::status status, const std::string& why) { Reply(status, "text/plain", why + "\n"); }

  // A page of another origin, or a name that was bent to this address, is none of ours.
  bool IsMeant(const Request& request) const {
    if (request[http::field::host] != hub_.Name()) return false;
    const auto origin = request.find(http::field::origin);
    return origin == request.end() || origin->value() == "http://" + hub_.Name();
  }

  void Serve() {
    Request request = parser_.release();
    const std::string target(request.target());
    if (!IsMeant(request)) return Refuse(http::status::forbidden, "This is not the address of the pages.");
    if (websocket::is_upgrade(request)) {
      if (target != kLink || !OnLink) return Refuse(http::status::not_found, "There is no such page.");
      return OnLink(std::move(stream_), std::move(place_), std::move(request));
    }
    if (target.starts_with(kControl)) return Control(request, target.substr(std::string(kControl).size()));
    const bool head = request.method() == http::verb::head;
    if (request.method() != http::verb::get && !head) {
      return Refuse(http::status::method_not_allowed, "Pages are only read.");
    }
    const auto file = hub_.Files().find(target);
    if (file == hub_.Files().end()) return Refuse(http::status::not_found, "There is no such page.");
    Reply(http::status::ok, file->second.Type, file->second.Bytes, head);
  }

  void Control(const Request& request, const std::string& what) {
    if (!hub_.TakesControl()) return Refuse(http::status::not_found, "There is no such page.");
    if (request.method() != http::verb::post) {
      return Refuse(http::status::method_not_allowed, "A control is asked for by POST.");
    }
    const std::uint64_t number = hub_.NextNumber();
    const std::string token(request["X-Pawnfield-Token"]);
    OnControl(number, shared_from_this());
    // A program that is busy for so long, or whose events were too many, gives the place free again.
    patience_.expires_after(std::chrono::seconds(kFirstWordSeconds));
    patience_.async_wait([self = shared_from_this(), number](const Error& error) {
      if (!error) self->OnPatienceEnds(number);
    });
    hub_.Deliver({PageEventKind::Control, number, place_->Address(), what, token, PageServer::NowUs()});
  }

  Hub& hub_;
  std::unique_ptr<Place> place_;
  beast::tcp_stream stream_;
  asio::steady_timer patience_;
  beast::flat_buffer buffer_{kHeaderBytes + kBodyBytes};
  http::request_parser<http::string_body> parser_;
  Response response_;
};

// Messages by OSC from the addresses that are listed, and to them.
class OscDoor {
 public:
  OscDoor(Hub& hub, asio::io_context& context, const PagesPlace& place)
      : hub_(hub),
        socket_(context,
                Udp::endpoint(asio::ip::make_address(place.Address), static_cast<unsigned short>(place.ControlPort))) {
    for (const std::string& listed : place.ControlAddresses) List(listed);
    if (!listed_.empty()) Receive();
  }

  void Send(const std::string& packet) {
    for (const Udp::endpoint& to : listed_) SendTo(packet, to);
  }
  void Answer(std::uint64_t request, int status, const std::string& text) {
    const auto asked = asked_.find(request);
    if (asked == asked_.end()) return;
    SendTo(OscAnswer(status, text), asked->second);
    asked_.erase(asked);
  }

 private:
  // "192.168.1.9", "fd00::9" or, with a port of its own for what goes out, "192.168.1.9:9000", "[fd00::9]:9000". What
  // is none of these is passed over.
  void List(const std::string& text) {
    constexpr unsigned short kUsualPort = 8475;
    const bool bracketed = text.starts_with('[') && text.find(']') != std::string::npos;
    std::size_t colon = bracketed ? text.find(']') + 1 : text.find(':');
    // Several colons are an address of the newer kind, without a port.
    if (!bracketed && text.find(':', colon + 1) != std::string::npos) colon = std::string::npos;
    const std::string host = text.substr(0, colon);
    Error error;
    const auto address = asio::ip::make_address(bracketed ? host.substr(1, host.size() - 2) : host, error);
    const bool hasPort = colon < text.size();
    const int port = hasPort ? std::atoi(text.c_str() + colon + 1) : kUsualPort;
    if (!error && IsLocal(address) && port > 0 && port < 65536) {
      listed_.emplace_back(address, static_cast<unsigned short>(port));
    }
  }

  bool IsListed(const asio::ip::address& address) const {
    for (const Udp::endpoint& one : listed_) {
      if (one.address() == address) return true;
    }
    return false;
  }

  void Receive() {
    socket_.async_receive_from(asio::buffer(packet_), from_, [this](const Error& error, std::size_t size) {
      if (error == asio::error::operation_aborted) return;
      if (!error && IsListed(from_.address()) && pace_.Allows()) Take(std::string(packet_.data(), size));
      Receive();
    });
  }

  void Take(const std::string& packet) {
    const std::optional<OscRequest> request = ReadOsc(packet);
    if (!request) return;
    const std::uint64_t number = hub_.NextNumber();
    if (asked_.size() >= kMostWaiting) asked_.clear();
    asked_[number] = from_;
    hub_.Deliver({PageEventKind::Control, number, from_.address().to_string(), request->Text, request->Token,
                  PageServer::NowUs()});
  }

  void SendTo(const std::string& packet, const Udp::endpoint& to) {
    Error ignored;
    socket_.send_to(asio::buffer(packet), to, 0, ignored);
  }

  Hub& hub_;
  Udp::socket socket_;
  std::vector<Udp::endpoint> listed_;
  std::array<char, kMessageBytes> packet_{};
  Udp::endpoint from_;
  Pace pace_;
  std::map<std::uint64_t, Udp::endpoint> asked_;
};

}  // namespace

// One time of being on: its thread, its listening sockets and all that is connected.
class PageServer::Running : public Hub {
 public:
  Running(const PagesPlace& place, const std::map<std::string, PageFile>& files,
          const std::function<void(PageEvent)>& deliver, std::uint64_t& numbers)
      : files_(files), deliver_(deliver), numbers_(numbers), takesControl_(place.Control), acceptor_(context_) {
    const Tcp::endpoint here(asio::ip::make_address(place.Address), static_cast<unsigned short>(place.Port));
    if (!IsLocal(here.address())) throw RuntimeError(kErrorDeviceIo, "The address is none of a local network.");
    acceptor_.open(here.protocol());
    acceptor_.set_option(asio::socket_base::reuse_address(true));
    acceptor_.bind(here);
    acceptor_.listen();
    port_ = acceptor_.local_endpoint().port();
    const std::string host = here.address().is_v6() ? "[" + place.Address + "]" : place.Address;
    name_ = host + ":" + std::to_string(port_);
    if (place.Control) osc_ = std::make_unique<OscDoor>(*this, context_, place);
    AcceptNext();
    thread_ = std::thread([this] { Run(); });
  }

  ~Running() override {
    context_.stop();
    thread_.join();
  }

  int Port() const { return port_; }

  // Of the program's other threads.
  template <typename Work>
  void Post(Work work) {
    asio::post(context_, std::move(work));
  }

  void Send(std::uint64_t page, const std::string& text) {
    if (const auto link = Find(page)) link->Send(text);
  }
  void Drop(std::uint64_t page) {
    if (const auto link = Find(page)) link->CloseAfterwards();
  }
  void Answer(std::uint64_t request, int status, const std::string& text) {
    const auto asked = asked_.find(request);
    if (asked != asked_.end()) {
      asked->second->Reply(static_cast<http::status>(status), "text/plain", text + "\n");
      asked_.erase(asked);
    } else if (osc_) {
      osc_->Answer(request, status, text);
    }
  }
  void SendOsc(const std::string& packet) {
    if (osc_) osc_->Send(packet);
  }

  const std::map<std::string, PageFile>& Files() const override { return files_; }
  const std::string& Name() const override { return name_; }
  bool TakesControl() const override { return takesControl_; }
  std::uint64_t NextNumber() override { return ++numbers_; }
  void Deliver(PageEvent event) override { deliver_(std::move(event)); }
  void Leave(const std::string& address) override {
    const auto found = addresses_.find(address);
    if (--found->second == 0) addresses_.erase(found);
    --connections_;
  }

 private:
  // Nothing that goes wrong here ends the program: the connection that it came from is gone, and the rest goes on.
  void Run() {
    for (;;) {
      try {
        context_.run();
        return;
      } catch (const std::exception&) {
        continue;
      }
    }
  }

  std::shared_ptr<Link> Find(std::uint64_t page) const {
    const auto found = links_.find(page);
    return found == links_.end() ? nullptr : found->second;
  }

  void AcceptNext() {
    acceptor_.async_accept([this](const Error& error, Tcp::socket socket) {
      if (!error) Welcome(std::move(socket));
      if (error == asio::error::operation_aborted) return;
      if (!error) return AcceptNext();
      // No descriptor is left, or the like: it is tried again, and not as fast as the machine can.
      rest_.expires_after(std::chrono::milliseconds(100));
      rest_.async_wait([this](const Error&) { AcceptNext(); });
    });
  }

  void Welcome(Tcp::socket socket) {
    Error error;
    const Tcp::endpoint peer = socket.remote_endpoint(error);
    if (error || !IsLocal(peer.address()) || connections_ >= kMostConnections) return;
    const std::string address = peer.address().to_string();
    const auto known = addresses_.find(address);
    if (known != addresses_.end() && known->second >= kMostConnectionsOfAddress) return;
    ++addresses_[address];
    ++connections_;
    auto place = std::make_unique<Place>(*this, address);
    socket.set_option(Tcp::no_delay(true), error);
    const auto visit = std::make_shared<Visit>(*this, std::move(socket), std::move(place));
    visit->OnLink = [this](beast::tcp_stream&& stream, std::unique_ptr<Place> its, Request&& request) {
      BeginLink(std::move(stream), std::move(its), request);
    };
    visit->OnControl = [this](std::uint64_t number, std::shared_ptr<Visit> asking) {
      if (asked_.size() >= kMostConnections) asked_.clear();
      asked_[number] = std::move(asking);
    };
    visit->OnPatienceEnds = [this](std::uint64_t number) { Answer(number, 503, "The program is busy."); };
    visit->Begin();
  }

  void BeginLink(beast::tcp_stream&& stream, std::unique_ptr<Place> place, const Request& request) {
    const auto link = std::make_shared<Link>(*this, std::move(stream), std::move(place), NextNumber());
    link->OnGone = [this](std::uint64_t number) { links_.erase(number); };
    links_[link->Number()] = link;
    link->Accept(request);
  }

  const std::map<std::string, PageFile>& files_;
  const std::function<void(PageEvent)>& deliver_;
  std::uint64_t& numbers_;
  const bool takesControl_;
  int port_ = 0;
  std::string name_;
  std::map<std::string, std::size_t> addresses_;
  std::size_t connections_ = 0;
  // Below what they count for, so that the handlers of the context, which hold connections, go first.
  asio::io_context context_{1};
  Tcp::acceptor acceptor_;
  asio::steady_timer rest_{context_};
  std::unique_ptr<OscDoor> osc_;
  std::map<std::uint64_t, std::shared_ptr<Link>> links_;
  std::map<std::uint64_t, std::shared_ptr<Visit>> asked_;
  std::thread thread_;
};

bool IsLocalAddress(const std::string& address) {
  Error error;
  const auto parsed = asio::ip::make_address(address, error);
  return !error && IsLocal(parsed);
}

PageServer::PageServer(std::map<std::string, PageFile> files, std::function<void(PageEvent)> deliver)
    : files_(std::move(files)), deliver_(std::move(deliver)) {}

PageServer::~PageServer() = default;

int PageServer::Open(const PagesPlace& place) {
  Close();
  try {
    running_ = std::make_unique<Running>(place, files_, deliver_, numbers_);
  } catch (const boost::system::system_error& error) {
    throw RuntimeError(kErrorDeviceIo, error.code().message());
  }
  return running_->Port();
}

void PageServer::Close() { running_.reset(); }

void PageServer::Send(std::uint64_t page, const std::string& text) {
  if (running_) running_->Post([on = running_.get(), page, text] { on->Send(page, text); });
}

void PageServer::Drop(std::uint64_t page) {
  if (running_) running_->Post([on = running_.get(), page] { on->Drop(page); });
}

void PageServer::Answer(std::uint64_t request, int status, const std::string& text) {
  if (running_) running_->Post([on = running_.get(), request, status, text] { on->Answer(request, status, text); });
}

void PageServer::SendOsc(const OscMessage& message) {
  if (running_) running_->Post([on = running_.get(), packet = WriteOsc(message)] { on->SendOsc(packet); });
}

std::int64_t PageServer::NowUs() {
  using std::chrono::microseconds;
  return std::chrono::duration_cast<microseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace pawnfield

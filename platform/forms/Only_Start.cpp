#include "platform/forms/Only_Start.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"

namespace Forms {

namespace {

// With it the desktop lets a window come to the front that the user did not click on.
constexpr const char* activation = "XDG_ACTIVATION_TOKEN";
constexpr int socket_kind = SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK;

struct Address {
  sockaddr_un name{};
  socklen_t length = 0;
  const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&name); }
};

// A name in the kernel, not a file: it is gone with its process however that ends, and needs no
// folder that can be written. It is made of what the file is, by whichever path it was reached.
std::optional<Address> Address_Of(const std::string& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return std::nullopt;
  std::string text(1, '\0');
  text += "Wine_Cellar";
  for (const auto part : {std::uint64_t{geteuid()}, status.st_dev, status.st_ino}) {
    text += "." + std::to_string(part);
  }
  Address address;
  address.name.sun_family = AF_UNIX;
  std::ranges::copy(text, address.name.sun_path);
  address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + text.size());
  return address;
}

// Anybody can take such a name, or call it.
bool Is_Same_User(int connection) {
  ucred peer{};
  socklen_t size = sizeof peer;
  return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
         peer.uid == geteuid();
}

bool Call(const Address& address) {
  const int connection = socket(AF_UNIX, socket_kind, 0);
  const bool called = connect(connection, address.Get(), address.length) == 0;
  const bool answers = called && Is_Same_User(connection);
  const QByteArray token = qgetenv(activation);
  if (answers) send(connection, token.data(), static_cast<std::size_t>(token.size()), MSG_NOSIGNAL);
  close(connection);
  return answers;
}

void Take_Token(int connection) {
  constexpr int patience = 200;  // milliseconds
  std::array<char, 512> token{};
  pollfd arrival{connection, POLLIN, 0};
  poll(&arrival, 1, patience);
  const ssize_t length = recv(connection, token.data(), token.size(), 0);
  if (length > 0) qputenv(activation, QByteArray(token.data(), length));
}

void Bring_To_Front(QWidget* window) {
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->raise();
}

// All windows, that with the focus last: a box before which everything waits, or the form that was
// worked on.
void Come_To_Front() {
  QWidget* first = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const auto* form = dynamic_cast<Form_Window*>(window);
    if (form == nullptr || !form->isVisible()) continue;
    Bring_To_Front(window);
    if (first == nullptr || &form->Owner() == Focus_Watch::The().Front()) first = window;
  }
  if (QWidget* box = QApplication::activeModalWidget()) first = box;
  if (first == nullptr) return;
  Bring_To_Front(first);
  first->activateWindow();
}

}  // namespace

Only_Start::~Only_Start() {
  calls_.reset();
  if (socket_ >= 0) close(socket_);
}

bool Only_Start::Take(const std::string& file) {
  const std::optional<Address> address = Address_Of(file);
  if (!address) return true;
  socket_ = socket(AF_UNIX, socket_kind, 0);
  if (bind(socket_, address->Get(), address->length) != 0) return !Call(*address);
  listen(socket_, SOMAXCONN);
  calls_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
  QObject::connect(calls_.get(), &QSocketNotifier::activated, calls_.get(), [this] { Answer(); });
  return true;
}

void Only_Start::Answer() const {
  const int connection = accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
  if (connection < 0) return;
  if (Is_Same_User(connection)) {
    Take_Token(connection);
    Come_To_Front();
  }
  close(connection);
}

}  // namespace Forms

// SPDX-License-Identifier: MIT
#include "shell/BringToFront.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <span>
#include <xcb/xcb.h>

namespace velmora {

namespace {

struct Freed {
  void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using ReplyOf = std::unique_ptr<Reply, Freed>;

/// Who asks for the window: a person, which a window manager heeds even where it keeps the focus.
constexpr std::uint32_t askedByPerson = 2;
constexpr std::uint32_t longestList = 4096;

/// The windows of a window system that has a window manager which keeps to the common rules.
class Windows final {
 public:
  explicit Windows(xcb_connection_t* connection)
      : m_connection(connection), m_root(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root) {}

  bool Activate(ProcessNumber process) const;

 private:
  [[nodiscard]] xcb_atom_t Atom(std::string_view name) const;
  /// The numbers that a window bears under that name.
  [[nodiscard]] std::vector<std::uint32_t> Numbers(xcb_window_t window, std::string_view name,
                                                   xcb_atom_t type) const;

  xcb_connection_t* m_connection;
  xcb_window_t m_root;
};

xcb_atom_t Windows::Atom(std::string_view name) const {
  const auto asked = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const ReplyOf<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, asked, nullptr));
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::vector<std::uint32_t> Windows::Numbers(xcb_window_t window, std::string_view name,
                                            xcb_atom_t type) const {
  const auto asked = xcb_get_property(m_connection, 0, window, Atom(name), type, 0, longestList);
  const ReplyOf<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, asked, nullptr));
  if (!reply || reply->format != 32) return {};
  const std::span numbers(static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())),
                          reply->value_len);
  return {numbers.begin(), numbers.end()};
}

bool Windows::Activate(ProcessNumber process) const {
  // In the order in which they came up: the first is a program's main window.
  for (const xcb_window_t window : Numbers(m_root, "_NET_CLIENT_LIST", XCB_ATOM_WINDOW)) {
    const std::vector<std::uint32_t> owner = Numbers(window, "_NET_WM_PID", XCB_ATOM_CARDINAL);
    if (owner.empty() || owner.front() != process) continue;
    xcb_client_message_event_t wish{};
    wish.response_type = XCB_CLIENT_MESSAGE;
    wish.format = 32;
    wish.window = window;
    wish.type = Atom("_NET_ACTIVE_WINDOW");
    wish.data.data32[0] = askedByPerson;
    wish.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(m_connection, 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&wish));
    xcb_flush(m_connection);
    return true;
  }
  return false;
}

}  // namespace

bool BringToFront(ProcessNumber process) {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  // Without a screen Qt has the interface too, but no connection behind it.
  xcb_connection_t* connection = x11 == nullptr ? nullptr : x11->connection();
  return connection != nullptr && Windows(connection).Activate(process);
}

}  // namespace velmora

// Keys by way of the X server, and the hot key that it hears for us.
#pragma once

#include <memory>

#include "keys/KeyDevice.h"

namespace tarvik::keys {

/// A connection to the X server of the session.
class XServer : public KeyDevice {
 public:
  /// Null where there is none.
  [[nodiscard]] static std::unique_ptr<XServer> Open();
  ~XServer() override;
  XServer(const XServer&) = delete;
  XServer& operator=(const XServer&) = delete;

  /// Whether it takes keys from programs.
  [[nodiscard]] bool HasTest() const;
  /// It has HasTest().
  int Send(const keypipe::Stroke& stroke) override;
  /// From now on Ctrl+Alt+End is ours, in whatever window. False where another program has it.
  bool TakeHotKey();
  /// To be waited for before HotKeyPressed() is asked.
  [[nodiscard]] int File() const;
  /// Whether it has been pressed since last asked.
  [[nodiscard]] bool HotKeyPressed();

 private:
  struct Connection;
  explicit XServer(std::unique_ptr<Connection> connection);
  std::unique_ptr<Connection> connection_;
};

}  // namespace tarvik::keys

// The engine's only way to the net: a SOCKS proxy within this process, which everything that the engine sends over TCP
// has to pass, whoever asked for it (scripts, sockets, peer connections). While it is shut nothing goes out and what
// was open is cut. It serves nobody but this process.
#pragma once

#include <QByteArray>
#include <QTcpServer>

namespace pelmar {

// An address of this machine that nothing else is likely to have: it is the only one that the engine reaches directly.
inline constexpr char kGateHost[] = "127.0.0.71";

class NetGate : public QObject {
 public:
  // It begins shut.
  NetGate();

  // As the engine is told it.
  [[nodiscard]] QByteArray Address() const;

  void SetOpen(bool open);
  [[nodiscard]] bool IsOpen() const { return open_; }

 private:
  void Accept();

  QTcpServer server_;
  bool open_ = false;
};

}  // namespace pelmar

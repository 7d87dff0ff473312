// The engine's only way to the net: a SOCKS proxy within this process, which everything that the engine sends over TCP
// has to pass, whoever asked for it (scripts, sockets, peer connections). It serves nobody but this process, and is
// open or shut for life: a gate that opens lets out what an earlier page has asked for.
#pragma once

#include <QByteArray>
#include <QTcpServer>

namespace pelmar {

// An address of this machine that nothing else is likely to have: it is the only one that the engine reaches directly.
inline constexpr char kGateHost[] = "127.0.0.71";

class NetGate : public QObject {
 public:
  explicit NetGate(bool open);

  // As the engine is told it.
  [[nodiscard]] QByteArray Address() const;

 private:
  void Accept();

  QTcpServer server_;
  const bool open_;
};

}  // namespace pelmar

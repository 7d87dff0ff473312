// A SOCKS proxy within this process. The engine has no other way to the net: all its TCP traffic passes a gate, also
// the traffic of scripts and of peer connections. An open gate serves this process only. A shut gate refuses every
// connection. A gate never changes between open and shut: if a shut gate opened, late requests of earlier pages could
// get out.
#pragma once

#include <QByteArray>
#include <QTcpServer>

namespace pelmar {

// A local address that nothing else is likely to use. The engine reaches only this address directly.
inline constexpr char kGateHost[] = "127.0.0.71";

class NetGate : public QObject {
 public:
  explicit NetGate(bool open);

  // The gate's host and port, as the engine reads them.
  [[nodiscard]] QByteArray Address() const;

 private:
  void Accept();

  QTcpServer server_;
  const bool open_;
};

}  // namespace pelmar

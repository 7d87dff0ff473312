// The engine's only way to the net: a SOCKS proxy within this process. Everything that the engine sends over TCP passes
// the gate, also from scripts, sockets and peer connections. The gate serves only this process. A gate never changes
// between open and shut, since an opened gate would let out requests of earlier pages.
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

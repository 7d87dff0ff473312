#include "html/engine/net_gate.h"

#include <netinet/in.h>
#include <sys/socket.h>

#include <QDir>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QUrl>
#include <QtEndian>
#include <optional>

namespace pelmar {
namespace {

constexpr qint64 kBufferSize = qint64{256} * 1024;  // the largest size of each buffer of a connection, in bytes
constexpr char kVersion = 5, kConnect = 1, kAddress4 = 1, kName = 3, kAddress6 = 4, kDone = 0, kRefused = 2,
               kFailed = 5;
constexpr qsizetype kHeadLength = 4, kPortLength = 2;

// Whether the other end of a local connection is a socket of this process.
bool IsOurs(const QTcpSocket& socket) {
  for (const QString& name :
       QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)) {
    sockaddr_in here{}, there{};
    socklen_t here_size = sizeof here, there_size = sizeof there;
    const int file = name.toInt();
    if (getsockname(file, reinterpret_cast<sockaddr*>(&here), &here_size) != 0 || here.sin_family != AF_INET) continue;
    if (getpeername(file, reinterpret_cast<sockaddr*>(&there), &there_size) != 0) continue;
    if (ntohs(here.sin_port) == socket.peerPort() && ntohs(there.sin_port) == socket.localPort()) return true;
  }
  return false;
}

struct Target {
  QString host;
  quint16 port = 0;
};

// Reads the target of a SOCKS request. Nothing if the request is incomplete.
std::optional<Target> ReadTarget(const QByteArray& request) {
  if (request.size() <= kHeadLength) return std::nullopt;
  const char kind = request[3];
  const qsizetype begin = kHeadLength + (kind == kName ? 1 : 0);
  const qsizetype length = kind == kName ? static_cast<quint8>(request[kHeadLength]) : kind == kAddress6 ? 16 : 4;
  if (request.size() < begin + length + kPortLength) return std::nullopt;
  const QByteArray host = request.mid(begin, length);
  Target target;
  target.port = qFromBigEndian<quint16>(request.constData() + begin + length);
  if (kind == kName) target.host = QString::fromLatin1(host);
  if (kind == kAddress4) target.host = QHostAddress(qFromBigEndian<quint32>(host.constData())).toString();
  if (kind == kAddress6) target.host = QHostAddress(reinterpret_cast<const quint8*>(host.constData())).toString();
  return target;
}

// One connection through the gate. The engine's socket owns this object.
class Connection : public QObject {
 public:
  explicit Connection(QTcpSocket* engine) : QObject(engine), engine_(*engine) {
    engine_.setReadBufferSize(kBufferSize);
    net_.setReadBufferSize(kBufferSize);
    connect(&engine_, &QTcpSocket::readyRead, this, &Connection::FromEngine);
    connect(&engine_, &QTcpSocket::disconnected, &engine_, &QObject::deleteLater);
    connect(&engine_, &QTcpSocket::bytesWritten, this, [this] { Pass(net_, engine_); });
    connect(&net_, &QTcpSocket::connected, this, [this] {
      Answer(kDone);
      FromEngine();
    });
    connect(&net_, &QTcpSocket::readyRead, this, [this] { Pass(net_, engine_); });
    connect(&net_, &QTcpSocket::bytesWritten, this, [this] { Pass(engine_, net_); });
    connect(&net_, &QTcpSocket::errorOccurred, this, &Connection::End);
  }

 private:
  enum class Step { kGreeting, kRequest, kConnecting, kOpen };

  void FromEngine() {
    if (step_ == Step::kOpen) return Pass(engine_, net_);
    if (step_ == Step::kConnecting) return;
    request_ += engine_.read(kBufferSize);
    if (step_ == Step::kGreeting) ReadGreeting();
    if (step_ == Step::kRequest) ReadRequest();
  }

  void ReadGreeting() {
    if (request_.size() < 2 || request_.size() < 2 + static_cast<quint8>(request_[1])) return;
    request_.remove(0, 2 + static_cast<quint8>(request_[1]));
    const char no_password[] = {kVersion, 0};
    engine_.write(no_password, sizeof no_password);
    step_ = Step::kRequest;
  }

  void ReadRequest() {
    const auto target = ReadTarget(request_);
    if (!target) return;
    if (request_[1] != kConnect) return Refuse(kRefused);
    step_ = Step::kConnecting;
    // The system's settings may require a proxy for this address.
    QUrl address;
    address.setScheme(target->port == 443 ? QStringLiteral("https") : QStringLiteral("http"));
    address.setHost(target->host);
    address.setPort(target->port);
    net_.setProxy(QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(address)).value(0));
    net_.connectToHost(target->host, target->port);
  }

  void Answer(char result) {
    const char answer[] = {kVersion, result, 0, kAddress4, 0, 0, 0, 0, 0, 0};
    engine_.write(answer, sizeof answer);
    step_ = Step::kOpen;
  }

  void Refuse(char result) {
    Answer(result);
    engine_.disconnectFromHost();
  }

  void End() {
    if (step_ == Step::kConnecting) return Refuse(kFailed);
    Pass(net_, engine_);
    engine_.disconnectFromHost();
  }

  void Pass(QTcpSocket& from, QTcpSocket& to) {
    if (step_ != Step::kOpen) return;
    const qint64 room = kBufferSize - to.bytesToWrite();
    if (room > 0 && from.bytesAvailable() > 0) to.write(from.read(room));
  }

  QTcpSocket& engine_;
  QTcpSocket net_;
  Step step_ = Step::kGreeting;
  QByteArray request_;
};

}  // namespace

NetGate::NetGate(bool open) : open_(open) {
  server_.setProxy(QNetworkProxy::NoProxy);
  connect(&server_, &QTcpServer::newConnection, this, &NetGate::Accept);
  server_.listen(QHostAddress(QLatin1String(kGateHost)));
}

QByteArray NetGate::Address() const {
  // If the gate can't listen, the engine gets port 9. This port is reserved for a service that drops all it receives,
  // so no request gets out.
  const int port = server_.isListening() ? server_.serverPort() : 9;
  return QByteArray(kGateHost) + ':' + QByteArray::number(port);
}

void NetGate::Accept() {
  while (QTcpSocket* socket = server_.nextPendingConnection()) {
    if (open_ && IsOurs(*socket)) {
      new Connection(socket);
    } else {
      socket->abort();
      socket->deleteLater();
    }
  }
}

}  // namespace pelmar

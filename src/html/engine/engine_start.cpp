#include "html/engine/engine_start.h"

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QNetworkProxy>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <cerrno>

#include "html/engine/net_gate.h"

// A function of Qt without a public header. It sets the OpenGL context that all other contexts share.
extern void qt_gl_set_global_share_context(QOpenGLContext* context);

namespace pelmar {
namespace {

constexpr char kFlags[] = "QTWEBENGINE_CHROMIUM_FLAGS";
// Closes the engine's ways around the gate: UDP, and look-ups of host names by the engine itself.
constexpr char kOnlyThroughTheGate[] =
    " --force-webrtc-ip-handling-policy=disable_non_proxied_udp --disable-quic --dns-prefetch-disable"
    " --host-resolver-rules=\"MAP * ~NOTFOUND, EXCLUDE ";
// With one of these variables the engine could use another proxy, another version of SOCKS or the desktop's settings.
constexpr const char* kProxyVariables[] = {
    "auto_proxy",    "AUTO_PROXY",          "all_proxy",       "ALL_PROXY",        "http_proxy",
    "HTTP_PROXY",    "https_proxy",         "HTTPS_PROXY",     "ftp_proxy",        "FTP_PROXY",
    "SOCKS_VERSION", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "KDE_FULL_SESSION", "GNOME_DESKTOP_SESSION_ID"};
constexpr char kNoSandbox[] = "QTWEBENGINE_DISABLE_SANDBOX";

// The sandbox needs a user namespace and refuses root. If the sandbox fails, the engine ends the whole program.
bool SandboxWorks() {
  if (geteuid() == 0) return false;
  const pid_t child = fork();
  if (child == 0) _exit(unshare(CLONE_NEWUSER | CLONE_NEWPID) == 0 ? 0 : 1);
  int status = 1;
  if (child > 0)
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  return child > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// The engine draws by software and only reads the format of the shared context, so an empty context is enough. The
// usual attribute, AA_ShareOpenGLContexts, would create a real context at every start of the program.
void ShareEmptyContext() {
  if (QOpenGLContext::globalShareContext() != nullptr) return;
  auto* context = new QOpenGLContext(qApp);
  qt_gl_set_global_share_context(context);
}

}  // namespace

ScopedVariable::ScopedVariable(const char* name, const QByteArray& value) : name_(name) {
  if (qEnvironmentVariableIsSet(name)) old_ = qgetenv(name);
  if (value.isNull()) {
    qunsetenv(name);
  } else {
    qputenv(name, value);
  }
}

ScopedVariable::~ScopedVariable() {
  if (old_) {
    qputenv(name_, *old_);
  } else {
    qunsetenv(name_);
  }
}

EngineStart::EngineStart() {
  const auto set = [this](const char* name, const QByteArray& value) { variables_.emplace_back(name, value); };
  set(kFlags, qgetenv(kFlags) + " --disable-gpu --lang=cs" + kOnlyThroughTheGate + kGateHost + "\"");
  // Requests to this machine pass the gate too.
  set("no_proxy", "<-loopback>");
  for (const char* name : kProxyVariables) set(name, QByteArray());
  if (!SandboxWorks()) set(kNoSandbox, "1");
  ShareEmptyContext();
  QNetworkProxyFactory::setUseSystemConfiguration(true);
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  // Nobody needs the engine's reports of its start on standard error.
  QLoggingCategory::setFilterRules(QStringLiteral("default=false\nqt.webenginecontext=false"));
}

EngineStart::~EngineStart() { QLoggingCategory::setFilterRules(QString()); }

}  // namespace pelmar

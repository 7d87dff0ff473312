// The settings that the web engine reads when it starts. The engine starts at the first use of the browser.
#pragma once

#include <QByteArray>
#include <list>
#include <optional>

namespace pelmar {

// Sets an environment variable, or removes the variable if `value` is null. The destructor undoes the change.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const QByteArray& value);
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;
  ~ScopedVariable();

 private:
  const char* name_;
  std::optional<QByteArray> old_;
};

// The environment variable from which a new profile of the engine reads the address of its NetGate.
inline constexpr char kProxyVariable[] = "SOCKS_SERVER";

// An object of this class must exist while the engine starts. The destructor restores the environment, since child
// processes of the program inherit the environment.
class EngineStart {
 public:
  EngineStart();
  EngineStart(const EngineStart&) = delete;
  EngineStart& operator=(const EngineStart&) = delete;
  ~EngineStart();

 private:
  std::list<ScopedVariable> variables_;
};

}  // namespace pelmar

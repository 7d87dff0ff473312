// What the web engine has to be told before its first page, because it is loaded late. Once it runs, it asks no more.
#pragma once

#include <QByteArray>
#include <list>
#include <optional>

namespace pelmar {

// A variable of the environment, set, or not there for a null value, while this lives.
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

// The variable that tells the engine's profiles their gate while they are made.
inline constexpr char kWayOut[] = "SOCKS_SERVER";

// While one of these lives, the engine may start. The environment is as before when it has gone, so that other programs
// that this one starts aren't touched.
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

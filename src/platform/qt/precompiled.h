// What nearly every file of the user interface includes, compiled once.
#pragma once

#include <QtWidgets>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

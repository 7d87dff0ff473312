// The headers that many files of the user interface include, compiled once. Rarely used headers stay out, since each
// compilation loads all headers of this file.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

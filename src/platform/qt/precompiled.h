// What many files of the user interface include, compiled once. Each compile maps all of it, so what few files need
// stays out.
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

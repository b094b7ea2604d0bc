#pragma once

#include "LogicPrefix.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTimer>
#include <QWidget>

#pragma once

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

#include <functional>
#include <memory>
#include <vector>

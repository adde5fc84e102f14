#pragma once

#include <QByteArray>
#include <QList>

namespace TFChartData {

/// Appends \a values as one array, byte for byte as QJsonDocument writes it in compact form.
void appendNumbers(QByteArray &json, const QList<double> &values);

} // namespace TFChartData

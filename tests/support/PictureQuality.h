#pragma once

#include <QByteArray>
#include <QSize>

#include <algorithm>
#include <cmath>
#include <limits>

namespace velvane {

/// How close the luma of decoded pictures comes to what they show.
class PictureQuality {
public:
    /// Both planes are without gaps between rows.
    void add(QSize size, const QByteArray &expected, const QByteArray &actual)
    {
        constexpr int block = 16;
        for (int y = 0; y < size.height(); y += block) {
            for (int x = 0; x < size.width(); x += block) {
                const int width = std::min(block, size.width() - x);
                const int height = std::min(block, size.height() - y);
                double sum = 0;
                for (int row = y; row < y + height; ++row)
                    sum += squares(expected, actual, qsizetype(row) * size.width() + x, width);
                m_squares += sum;
                m_samples += width * height;
                m_worst = std::min(m_worst, decibels(sum, width * height));
            }
        }
    }

    /// Over all pictures added, in dB; infinite when all are equal.
    double overall() const { return decibels(m_squares, m_samples); }
    /// Of the worst macroblock in any picture, in dB.
    double worstMacroblock() const { return m_worst; }

private:
    static double squares(const QByteArray &expected, const QByteArray &actual, qsizetype from,
                          int count)
    {
        int sum = 0;
        for (qsizetype i = from; i < from + count; ++i) {
            const int difference = quint8(expected[i]) - quint8(actual[i]);
            sum += difference * difference;
        }
        return sum;
    }

    static double decibels(double squares, double samples)
    {
        if (squares == 0)
            return std::numeric_limits<double>::infinity();
        return 10 * std::log10(255.0 * 255.0 * samples / squares);
    }

    double m_squares = 0;
    double m_samples = 0;
    double m_worst = std::numeric_limits<double>::infinity();
};

} // namespace velvane

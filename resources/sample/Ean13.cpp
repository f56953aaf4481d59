// SPDX-License-Identifier: Apache-2.0
#include "resources/sample/Ean13.h"

#include <algorithm>

namespace sample {

namespace {

constexpr int kModulesPerDigit = 7;

// The seven modules of each digit on the left side, written as a number; odd parity.
constexpr int kLeft[10] = {0b0001101, 0b0011001, 0b0010011, 0b0111101, 0b0100011,
                           0b0110001, 0b0101111, 0b0111011, 0b0110111, 0b0001011};

// The first digit has no bars: it is told by which of the next six have even parity (1).
constexpr int kParities[10] = {0b000000, 0b001011, 0b001101, 0b001110, 0b010011,
                               0b011001, 0b011100, 0b010101, 0b010110, 0b011010};

bool areDigits(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar letter) { return letter >= u'0' && letter <= u'9'; });
}

void append(std::vector<bool> &modules, int bits, int count)
{
    for (int bit = count - 1; bit >= 0; --bit) {
        modules.push_back((bits >> bit & 1) == 1);
    }
}

int inverted(int bits)
{
    return ~bits & 0b1111111;
}

int mirrored(int bits)
{
    int result = 0;
    for (int bit = 0; bit < kModulesPerDigit; ++bit) {
        result |= (bits >> bit & 1) << (kModulesPerDigit - 1 - bit);
    }
    return result;
}

} // namespace

QString withCheckDigit(const QString &digits)
{
    if (digits.size() != 12 || !areDigits(digits)) {
        return {};
    }
    int sum = 0;
    for (int place = 0; place < 12; ++place) {
        sum += digits[place].digitValue() * (place % 2 == 0 ? 1 : 3);
    }
    return digits + QString::number((10 - sum % 10) % 10);
}

std::vector<bool> ean13Modules(const QString &number)
{
    if (number.size() != 13 || withCheckDigit(number.left(12)) != number) {
        return {};
    }
    const int parities = kParities[number[0].digitValue()];
    std::vector<bool> modules;
    append(modules, 0b101, 3);
    for (int place = 1; place <= 6; ++place) {
        const int left = kLeft[number[place].digitValue()];
        const bool isEven = (parities >> (6 - place) & 1) == 1;
        append(modules, isEven ? mirrored(inverted(left)) : left, kModulesPerDigit);
    }
    append(modules, 0b01010, 5);
    for (int place = 7; place <= 12; ++place) {
        append(modules, inverted(kLeft[number[place].digitValue()]), kModulesPerDigit);
    }
    append(modules, 0b101, 3);
    return modules;
}

} // namespace sample

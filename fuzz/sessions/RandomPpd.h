// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QStringList>

#include <random>

using Random = std::mt19937_64;

/// A number from `least` to `most`, both included.
int between(Random &random, int least, int most);
/// Yes in `percent` of the cases.
bool chance(Random &random, int percent);

/// The keywords of the six options that the panel binds.
const QStringList &boundOptions();

/// A PPD made at random, and what was put into it.
struct RandomPpd
{
    QByteArray text;
    /// The keywords of the choices of each bound option that the PPD has; a keyword may come twice
    /// in the text.
    QMap<QString, QSet<QString>> choices;
    /// How many choices the text gives the option.
    QMap<QString, int> count;
};

/// Bound options missing, without choices or with up to 200, with no default, one or two, without
/// titles, with titles of any bytes, with choices that come twice; options of others between them.
RandomPpd randomPpd(Random &random);

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "fuzz/sessions/RandomPpd.h"

#include <QByteArrayList>
#include <QJsonObject>
#include <QStringList>

#include <optional>

/// One session of a run: its requests, and the PPD that its `open` names.
struct RandomSession
{
    RandomPpd ppd;
    QByteArrayList requests;
};

/// What must hold of the answers to a session whatever the panel does: one reply for each request
/// and no events with an error, selections inside their lists, marks and requests for marks that
/// are choices of the PPD, the same option keys all the time, no bit of the flag but the first
/// moving, controls inside their ranges.
class SessionChecks
{
public:
    explicit SessionChecks(const RandomSession &session);

    /// Takes the answers of this session from the front of `answers`.
    void take(QByteArrayList &answers);

    /// What did not hold, with the place of the request; empty when all is well.
    const QStringList &complaints() const { return mComplaints; }

    /// Whether the plug-in declined to start.
    bool declined() const { return mDeclined; }

private:
    void takeReply(QByteArrayList &answers);
    void checkEvent(const QJsonObject &event);
    void checkReply(const QJsonObject &reply, int events);
    void checkOpen(const QJsonObject &reply);
    void checkState(const QJsonObject &state);
    void checkSelection(const QString &option, const QJsonObject &state);
    void checkControls(const QJsonObject &controls);
    void checkFlag(const QJsonValue &flag);
    void checkKeys(const QJsonValue &keys);
    bool isChoice(const QString &option, const QJsonValue &choice) const;
    void require(bool holds, const QString &complaint);

    const RandomSession &mSession;
    qsizetype mRequest = 0;
    QJsonObject mAsked;
    bool mHasPpd = false;
    bool mDeclined = false;
    std::optional<int> mFlag;
    std::optional<QJsonValue> mKeys;
    QStringList mComplaints;
};

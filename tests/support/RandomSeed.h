// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDebug>
#include <QRandomGenerator>

#include <random>

/// Returns a generator for a randomised test. Its seed is printed, so that a failed run can be
/// repeated with UIELEMENTS_TEST_SEED.
inline std::mt19937 seededGenerator()
{
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("UIELEMENTS_TEST_SEED", &isGiven);
    const quint32 seed = isGiven ? quint32(given) : QRandomGenerator::global()->bounded(1000000U);
    qInfo().noquote() << QStringLiteral("To repeat: UIELEMENTS_TEST_SEED=%1").arg(seed);
    return std::mt19937(seed);
}

/// Returns a number from \a lowest to \a highest, the same from one seed on every machine.
inline int randomFrom(std::mt19937 &generator, int lowest, int highest)
{
    return lowest + int(generator() % unsigned(highest - lowest + 1));
}

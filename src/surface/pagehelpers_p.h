// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QPicture;

namespace quirra {

// Small pieces of the page engine's drawing, kept apart from its state.

/**
 * @brief Plays a picture recorded in twips so that the painter's transform
 * alone says how large a twip is (undoing the device's resolution over the
 * picture's own).
 */
void playPicture(QPainter &painter, const QPicture &picture);

/** @brief Twips as a whole number, held within int so that a run far off the page cannot overflow.
 */
int clampToInt(double twips);

} // namespace quirra

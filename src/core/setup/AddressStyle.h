#pragma once

#include <QString>

namespace ostrel {

struct BusinessData;

// The address style is held as the caption of cmdAddress; other screens compare it with
// kUsaStyleAddress.
inline const QString kUsaStyleAddress = QStringLiteral("USA Style Address");
inline const QString kInternationalStyleAddress = QStringLiteral("International Style Address");

// The caption that the start-up tests set, in their order; `current` stands when none applies.
QString AddressCaptionByTests(const BusinessData& data, const QString& current);

// The caption after one click of cmdAddress: the click names the style it goes to.
QString ToggledAddressCaption(const QString& caption);

// The style in force after the decision: the tests' caption, then one click. So the result is the
// opposite of what the tests set. The caption before the first decision is kUsaStyleAddress.
QString DecideAddressStyle(const BusinessData& data, const QString& current = kUsaStyleAddress);

inline bool IsUsaStyle(const QString& caption) {
    return caption == kUsaStyleAddress;
}

} // namespace ostrel

// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "settings/Keys.h"

#include "base/Failure.h"

namespace tressel {

KeyEntry KeyEntry::At(int keyNumber) const
{
    if (keyNumber < first || keyNumber > last)
        throw Failure(FailureNumber::SubscriptOutOfRange);
    KeyEntry entry = *this;
    entry.number = keyNumber;
    return entry;
}

QString KeyEntry::StoredName() const
{
    return number ? name.toString() + QString::number(*number) : name.toString();
}

std::span<const KeyEntry *const> AllKeys()
{
    static constexpr const KeyEntry *all[] = {&keys::MainLeft,
                                              &keys::MainTop,
                                              &keys::MainWidth,
                                              &keys::MainHeight,
                                              &keys::VisibleItems,
                                              &keys::TabStrip,
                                              &keys::IndxBar,
                                              &keys::Chk,
                                              &keys::Menu,
                                              &keys::RightToLeft,
                                              &keys::OutlookColors,
                                              &keys::CustomColor,
                                              &keys::Color,
                                              &keys::TitleBarFont,
                                              &keys::TitleBarSize,
                                              &keys::TitleBarBold,
                                              &keys::TitleBarItalic,
                                              &keys::TitleBarUnderline,
                                              &keys::TitleBarColor,
                                              &keys::TitleCapFont,
                                              &keys::TitleCapSize,
                                              &keys::TitleCapBold,
                                              &keys::TitleCapItalic,
                                              &keys::TitleCapUnderline,
                                              &keys::TitleCapTextCol,
                                              &keys::FilePath,
                                              &keys::FileExt,
                                              &keys::ButtonBar,
                                              &keys::LastFile,
                                              &keys::LastPath,
                                              &keys::LastDBPath,
                                              &keys::OpenTXTPath,
                                              &keys::OpenDBPath,
                                              &keys::Separate,
                                              &keys::SearchPath,
                                              &keys::DatabaseFile,
                                              &keys::SQLString,
                                              &keys::Table,
                                              &keys::OnlyListFilename,
                                              &keys::GenLastPath,
                                              &keys::LastSavePath,
                                              &keys::ReportFile,
                                              &keys::RecentPath,
                                              &keys::TotalFileCount,
                                              &keys::ReplaceFrom,
                                              &keys::ReplaceTo,
                                              &keys::ExtAll,
                                              &keys::ExtFrom,
                                              &keys::ExtTo,
                                              &keys::ButtonStyle,
                                              &keys::ShowDigit,
                                              &keys::DigitType,
                                              &keys::EnableAnimation,
                                              &keys::AnimHeight,
                                              &keys::AnimWidth,
                                              &keys::Sound,
                                              &keys::Language,
                                              &keys::MakeDel,
                                              &keys::FromDir,
                                              &keys::ToDir,
                                              &keys::Folder,
                                              &keys::SubFolder,
                                              &keys::LastNumPath,
                                              &keys::ShowTips,
                                              &keys::WindowLeft,
                                              &keys::WindowTop,
                                              &keys::SplitSize,
                                              &keys::SplitCount,
                                              &keys::SplitOption,
                                              &keys::DeleteParts,
                                              &keys::OpenExplorer,
                                              &keys::CopyToFloppy,
                                              &keys::InitDir,
                                              &keys::PresetReplaceFrom,
                                              &keys::PresetReplaceTo,
                                              &keys::ProductName,
                                              &keys::CurrentVersion,
                                              &keys::CurrentBuildNumber,
                                              &keys::CSDVersion,
                                              &keys::RegisteredOwner,
                                              &keys::RegisteredOrganization};
    return all;
}

} // namespace tressel

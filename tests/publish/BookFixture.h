// SPDX-License-Identifier: MIT
#pragma once

#include "pages/FlashPageSourceImg.h"
#include "publish/FlashBookOutput.h"
#include "support/TemporaryResources.h"

#include <gtest/gtest.h>
#include <QSize>

namespace leafcast {

/// A template, pictures and an empty book folder, all in one temporary folder.
class BookFixture : public testing::Test {
protected:
    BookFixture();

    /// Replaces the properties of the template.
    void useProperties(const QByteArray& properties);
    /// Writes a JPEG of that size at 72 dpi and adds it as the next page.
    void addPicture(QSize size) const;
    /// The picture file of the page of that number, from 1.
    QString pictureFile(int number) const;

    /// What is published; "index.html" unless a name is given.
    std::unique_ptr<FlashBookOutput> newOutput(const QString& fileName = QString()) const;
    void writeBook() const { newOutput()->ouputTheBook(); }

    QString inBook(const QString& relativePath) const;
    /// "none" when there is no such file.
    QByteArray bookFile(const QString& relativePath) const;
    /// The relative paths of everything in the book, sorted.
    QStringList bookContent() const;

    TemporaryResources resources;
    std::shared_ptr<FlashPageSourceImg> pageSource = std::make_shared<FlashPageSourceImg>();
    std::shared_ptr<FlashTemplate> flashTemplate;
};

} // namespace leafcast

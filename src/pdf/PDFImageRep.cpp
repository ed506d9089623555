// SPDX-License-Identifier: MIT
#include "pdf/PDFImageRep.h"

#include "base/Log.h"
#include "base/Sentences.h"
#include "pdf/HiddenPictures.h"
#include "pdf/PDFServicePool.h"
#include "pdf/PDFServiceWorker.h"

#include <algorithm>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace leafcast {

/// The pages that are drawn ahead, and a worker for those that are not.
class PDFImageRep::Pool {
public:
    Pool(const PDFDocument::Source& source, const Options& options)
        : iSource(source)
        , iOptions(options)
        , iDirect(source)
    {
        iOptions.workFolder = QFileInfo(options.workFolder).absoluteFilePath();
    }

    void start(const std::vector<int>& pageIndices);
    void abandon();
    RenderedPage draw(int pageIndex, const QString& path);
    const QString& documentPath() const { return iSource.path; }

private:
    RenderedPage drawDirectly(int pageIndex, const QString& path);
    RenderedPage takeFromPlan(size_t place, const QString& path);
    size_t placeInPlan(int pageIndex) const;

    PDFDocument::Source iSource;
    Options iOptions;
    PDFServiceWorker iDirect;
    std::vector<int> iPlan;
    size_t iTaken = 0;
    std::unique_ptr<HiddenPictures> iPictures;
    std::unique_ptr<PDFServicePool> iAhead; // draws into iPictures, so it ends first
};

void PDFImageRep::Pool::start(const std::vector<int>& pageIndices)
{
    abandon();
    std::ranges::copy_if(
        pageIndices, std::back_inserter(iPlan), [](int pageIndex) { return pageIndex >= 0; });
    if (iPlan.empty())
        return;
    iPictures = std::make_unique<HiddenPictures>(iOptions);
    const auto requestAt
        = [this](size_t place) { return iPictures->renderRequest(iPlan.at(place), place); };
    if (iPictures->isUsable())
        iAhead
            = std::make_unique<PDFServicePool>(iSource, iPlan.size(), requestAt, iOptions.workers);
    else
        abandon();
}

void PDFImageRep::Pool::abandon()
{
    iAhead.reset();
    iPictures.reset();
    iPlan.clear();
    iTaken = 0;
}

RenderedPage PDFImageRep::Pool::draw(int pageIndex, const QString& path)
{
    if (pageIndex < 0)
        return { .written = false, .problem = Sentences::tr("the document has no such page") };
    const size_t place = placeInPlan(pageIndex);
    return place < iPlan.size() ? takeFromPlan(place, path) : drawDirectly(pageIndex, path);
}

size_t PDFImageRep::Pool::placeInPlan(int pageIndex) const
{
    const auto taken = iPlan.begin() + static_cast<std::ptrdiff_t>(iTaken);
    return static_cast<size_t>(std::find(taken, iPlan.end(), pageIndex) - iPlan.begin());
}

RenderedPage PDFImageRep::Pool::takeFromPlan(size_t place, const QString& path)
{
    for (; iTaken < place; ++iTaken) { // planned, but never asked for
        iAhead->next();
        iPictures->drop(iTaken);
    }
    ++iTaken;
    RenderedPage page = iPictures->moveTo(path, place, iAhead->next());
    if (iAhead->atEnd())
        abandon();
    return page;
}

RenderedPage PDFImageRep::Pool::drawDirectly(int pageIndex, const QString& path)
{
    const HiddenPictures pictures(iOptions);
    if (!pictures.isUsable())
        return { .written = false, .problem = Sentences::tr("the work folder can't be written") };
    return pictures.moveTo(path, 0, iDirect.ask(pictures.renderRequest(pageIndex, 0)));
}

PDFImageRep::PDFImageRep(const PDFDocument::Source& source, const Options& options)
    : iPool(std::make_unique<Pool>(source, options))
{
}

PDFImageRep::~PDFImageRep() = default;

void PDFImageRep::plan(const std::vector<int>& pageIndices)
{
    iPool->start(pageIndices);
}

RenderedPage PDFImageRep::drawPage(int pageIndex, const QString& path)
{
    RenderedPage page = iPool->draw(pageIndex, path);
    if (!page.written)
        LOG_WARN("PDFImageRep",
            u"%1: no picture of page %2: %3"_s.arg(
                iPool->documentPath(), QString::number(pageIndex + 1), page.problem));
    return page;
}

void PDFImageRep::abandonPlan()
{
    iPool->abandon();
}

} // namespace leafcast

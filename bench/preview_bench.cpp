// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// From the click on a texture of 1,024 by 1,024 pixels to its picture in memory. The aim is 150 ms with a child that
/// is kept ready; the one that is started for it is measured beside it.
#include "media/ChildDecoder.h"
#include "media/MediaChild.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "tools/demoworld/Textures.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void RunEventsUntil(const std::function<bool()>& holds) {
    while (!holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
}

class Texture {
public:
    Texture() : inside_(Paths::FromNative(QDir::toNativeSeparators(folder_.path()))) {
        constexpr int side = 1024;
        Demo::Picture picture(side, side);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                picture.At(x, y) = {static_cast<quint8>(x), static_cast<quint8>(y), static_cast<quint8>(x ^ y),
                                    static_cast<quint8>(x + y)};
        }
        QFile file(folder_.filePath(u"a.dds"_s));
        if (file.open(QIODevice::WriteOnly))
            file.write(Dds(picture, Demo::DdsFormat::Dxt5));
    }

    /// As the preview does it: copied, decoded, and read.
    void Show(ChildDecoder& decoder) const {
        const QString copy = inside_ + u"\\copy.dds"_s;
        const QString bitmap = inside_ + u"\\copy.bmp"_s;
        Files::Copy(inside_ + u"\\a.dds"_s, copy);
        bool done = false;
        decoder.Decode(copy, bitmap, [&](bool decoded) { done = decoded; });
        RunEventsUntil([&] { return done; });
        QFile file(Paths::ToNative(bitmap));
        if (!file.open(QIODevice::ReadOnly) || QImage::fromData(file.readAll(), "BMP").isNull())
            qFatal("the texture was not decoded");
    }

private:
    QTemporaryDir folder_;
    QString inside_;
};

void PictureFromAReadyChild(benchmark::State& state) {
    const Texture texture;
    const auto process = std::make_shared<MediaProcess>();
    ChildDecoder decoder(process);
    decoder.Prepare();
    RunEventsUntil([&] { return process->IsReady(); });
    for ([[maybe_unused]] auto iteration : state)
        texture.Show(decoder);
}

void PictureFromAFreshChild(benchmark::State& state) {
    const Texture texture;
    for ([[maybe_unused]] auto iteration : state) {
        ChildDecoder decoder(std::make_shared<MediaProcess>());
        texture.Show(decoder);
    }
}

} // namespace

BENCHMARK(PictureFromAReadyChild)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PictureFromAFreshChild)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Deployment.h"
#include "SettingsHold.h"

#include <QColor>
#include <QDateTime>
#include <QPoint>
#include <QSettings>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <cmath>
#include <type_traits>

/// One typed entry of the settings store. Every access opens its own short-lived QSettings, so a value
/// written anywhere is seen at once everywhere; see SettingsHold.
template <typename T>
class SettingKey
{
public:
    SettingKey(const char *name, T defaultValue)
        : m_name(QLatin1String(name))
        , m_default(std::move(defaultValue))
    {}

    QString name() const { return m_name; }
    const T &defaultValue() const { return m_default; }
    bool exists() const { return SettingsHold::value(m_name).isValid(); }

    /// The stored value; the default when there is none or when it cannot be read as a T.
    T value() const
    {
        QVariant stored = SettingsHold::value(m_name);
        if (!stored.isValid() || !stored.convert(qMetaTypeId<T>()))
            return m_default;
        const T result = stored.value<T>();
        if constexpr (std::is_floating_point_v<T>)
            return std::isfinite(result) ? result : m_default;
        return result;
    }

    void setValue(const T &value) const { SettingsHold::setValue(m_name, QVariant::fromValue(value)); }

    /// For what a slider sets; see SettingsHold.
    void setValueSoon(const T &value) const
    {
        SettingsHold::setValueSoon(m_name, QVariant::fromValue(value));
    }

    void remove() const { SettingsHold::setValue(m_name, {}); }

    /// Writes the default unless the key is there already.
    void ensure() const
    {
        if (!exists())
            setValue(m_default);
    }

private:
    QString m_name;
    T m_default;
};

/// Every key of the settings store, with its default.
namespace Settings {
// Folders: the unzipped game archive, and the root of the mod being built.
inline const SettingKey<QString> GamePath{"GamePath", {}};
inline const SettingKey<QString> OutputDir{"OutputDir", {}};

// How the program looks ("desktop", "light" or "dark") and speaks (a code of Language; empty: as the
// desktop).
inline const SettingKey<QString> Look{"Look", "desktop"};
inline const SettingKey<QString> UiLanguage{"Language", {}};

// Network services.
inline const SettingKey<bool> Updates{"Updates", true};
inline const SettingKey<QDateTime> UpdateDate{"UpdateDate", {}};
// Where the network services ask; with an empty text nothing is sent. The build sets the defaults.
inline const SettingKey<QString> UpdateUrl{"UpdateUrl", QString::fromUtf8(Deployment::updateUrl)};
inline const SettingKey<QString> MasterServerHost{"MasterServerHost",
                                                  QString::fromUtf8(Deployment::masterHost)};
inline const SettingKey<int> MasterServerPort{"MasterServerPort", 20700};

// Trees and playback.
inline const SettingKey<bool> HideMeshData{"HideMeshData", true};
inline const SettingKey<bool> HideAnimData{"HideAnimData", true};
inline const SettingKey<bool> AnimationAutoPlay{"AnimationAutoPlay", true};
inline const SettingKey<bool> ShowActionTrack{"ShowActionTrack", true};
inline const SettingKey<bool> GoToSelectedAction{"GoToSelectedAction", false};
inline const SettingKey<QString> SoundsFolder{"SoundsFolder", {}};
inline const SettingKey<bool> PlayEventSounds{"PlayEventSounds", true};

// Curves: a bit for each channel that is shown, and over how many frames to either side keys are smoothed.
inline const SettingKey<int> CurveChannels{"CurveChannels", 0x38}; // the rotations
inline const SettingKey<int> CurveSmoothing{"CurveSmoothing", 2};

// Folder explorers.
inline const SettingKey<bool> SkinnedMeshQuickSelect{"SkinnedMeshQuickSelect", true};
inline const SettingKey<bool> AnimationQuickSelect{"AnimationQuickSelect", true};
inline const SettingKey<bool> StaticMeshQuickSelect{"StaticMeshQuickSelect", true};
inline const SettingKey<bool> AnimationSyncSkin{"AnimationSyncSkin", true};
inline const SettingKey<QString> SkinnedMeshExplorePath{"SkinnedMeshExplorePath", {}};
inline const SettingKey<QString> AnimationExplorePath{"AnimationExplorePath", {}};
inline const SettingKey<QString> StaticMeshExplorePath{"StaticMeshExplorePath", {}};
// The folder that is neither the game's nor the mod's, chosen last.
inline const SettingKey<QString> SkinnedMeshExploreOther{"SkinnedMeshExploreOther", {}};
inline const SettingKey<QString> AnimationExploreOther{"AnimationExploreOther", {}};
inline const SettingKey<QString> StaticMeshExploreOther{"StaticMeshExploreOther", {}};
inline const SettingKey<bool> ExplorerEmptyFolders{"ExplorerEmptyFolders", false};

// The files last opened or saved, newest first.
inline const SettingKey<QStringList> SkinnedMeshRecentFiles{"SkinnedMeshRecentFiles", {}};
inline const SettingKey<QStringList> AnimationRecentFiles{"AnimationRecentFiles", {}};
inline const SettingKey<QStringList> StaticMeshRecentFiles{"StaticMeshRecentFiles", {}};
inline const SettingKey<QStringList> MaterialRecentFiles{"MaterialRecentFiles", {}};

// Last folders of the file dialogs.
inline const SettingKey<QString> SkinnedMeshLoadPath{"SkinnedMeshLoadPath", {}};
inline const SettingKey<QString> AnimationLoadPath{"AnimationLoadPath", {}};
inline const SettingKey<QString> StaticMeshLoadPath{"StaticMeshLoadPath", {}};
inline const SettingKey<QString> SkinnedMeshSavePath{"SkinnedMeshSavePath", {}};
inline const SettingKey<QString> AnimationSavePath{"AnimationSavePath", {}};
inline const SettingKey<QString> StaticMeshSavePath{"StaticMeshSavePath", {}};
inline const SettingKey<QString> StaticMeshExportPath{"StaticMeshExportPath", {}};
inline const SettingKey<QString> GltfExportPath{"GltfExportPath", {}};
inline const SettingKey<QString> GltfExportFormat{"GltfExportFormat", "glb"}; // or "gltf"
inline const SettingKey<QString> ImportPath{"ImportPath", {}};
inline const SettingKey<QString> ImportFilter{"ImportFilter", {}}; // of its file dialog, chosen last
inline const SettingKey<QString> PicturePath{"PicturePath", {}};
inline const SettingKey<QString> TablePath{"TablePath", {}};
// The archive of a mod, the mod that it was of, and what stays out of any.
inline const SettingKey<QString> PackPath{"PackPath", {}};
inline const SettingKey<QString> PackedMod{"PackedMod", {}};
inline const SettingKey<QString> PackLeaveOut{"PackLeaveOut", {}};
inline const SettingKey<int> BrowserKinds{"BrowserKinds", 0}; ///< a bit for each that is shown; 0 shows all
inline const SettingKey<int> BrowserState{"BrowserState", 0}; ///< all, of the mod, of the game, …
inline const SettingKey<int> BrowserOrder{"BrowserOrder", 0}; ///< by name, kind, folder
inline const SettingKey<bool> BrowserLargePictures{"BrowserLargePictures", false};
inline const SettingKey<bool> ProblemsWholeMod{"ProblemsWholeMod", false};
inline const SettingKey<QStringList> FindHistory{"FindHistory", {}}; // conditions, the last first

// Import. The time limit is in seconds.
inline const SettingKey<bool> ImportSwapYZ{"ImportSwapYZ", false};
inline const SettingKey<bool> ImportGenNormals{"ImportGenNormals", true};
inline const SettingKey<bool> ImportFlipUV{"ImportFlipUV", false};
inline const SettingKey<bool> ImportFlipWindingOrder{"ImportFlipWindingOrder", false};
inline const SettingKey<bool> ImportTextures{"ImportTextures", false};
inline const SettingKey<bool> ImportKMat{"ImportKMat", false};
inline const SettingKey<bool> ImportRotPitch{"ImportRotPitch", true};
inline const SettingKey<float> ImportScale{"ImportScale", 1.0f};
inline const SettingKey<int> ImportTimeLimit{"ImportTimeLimit", 60};

// Import of models that arrive ready for the game. A rate of 0 is the source's.
inline const SettingKey<bool> ImportReady{"ImportReady", false};
inline const SettingKey<bool> ImportReadyTextures{"ImportReadyTextures", true};
inline const SettingKey<bool> ImportReadyKMat{"ImportReadyKMat", true};
inline const SettingKey<float> ImportReadyRate{"ImportReadyRate", 30.0f};
inline const SettingKey<bool> ImportReadyExtraBones{"ImportReadyExtraBones", false};

// Viewport. MouseSpeed is in units per pixel (or per 1 ms tick of a held key), Brightness a factor.
inline const SettingKey<QColor> BGColor{"BGColor", QColor(0, 170, 255, 255)};
inline const SettingKey<bool> ShowGround{"ShowGround", false};
inline const SettingKey<bool> ShowAxisGizmo{"ShowAxisGizmo", false};
inline const SettingKey<bool> BackCull{"BackCull", false};
inline const SettingKey<int> SurfSelectType{"SurfSelectType", 0};
inline const SettingKey<int> Shading{"Shading", 0};
inline const SettingKey<int> SurfaceLook{"SurfaceLook", 0};
inline const SettingKey<bool> ShowVertexNormals{"ShowVertexNormals", false};
inline const SettingKey<bool> SortTransparency{"SortTransparency", false};
inline const SettingKey<bool> SharpTexels{"SharpTexels", false};
inline const SettingKey<bool> SmoothEdges{"SmoothEdges", false};
inline const SettingKey<bool> FadingGround{"FadingGround", false};
inline const SettingKey<bool> ShowSurfaceTint{"ShowSurfaceTint", true};
inline const SettingKey<bool> ShowSkeleton{"ShowSkeleton", false};
inline const SettingKey<bool> ShowHotPoints{"ShowHotPoints", false};
inline const SettingKey<int> ShowDamage{"ShowDamage", 0};    ///< nothing, damage scales, impact types
inline const SettingKey<bool> ShowBoxes{"ShowBoxes", false}; ///< of the bones and of the model
inline const SettingKey<bool> ShowEvents{"ShowEvents", false};
inline const SettingKey<bool> ShowStatistics{"ShowStatistics", false};
inline const SettingKey<bool> OnionSkin{"OnionSkin", false};
inline const SettingKey<int> OnionSkinFrames{"OnionSkinFrames", 2}; ///< before and after
inline const SettingKey<int> OnionSkinStep{"OnionSkinStep", 1};     ///< frames from one to the next
inline const SettingKey<bool> OrbitMode{"OrbitMode", false};
inline const SettingKey<int> Lens{"Lens", 90}; ///< vertical field of view, degrees
inline const SettingKey<bool> OrthographicSides{"OrthographicSides", false};
inline const SettingKey<bool> FrameOnOpen{"FrameOnOpen", true};
inline const SettingKey<float> MouseSpeed{"MouseSpeed", 0.15f};
inline const SettingKey<float> Brightness{"Brightness", 1.0f};

// Saved pictures. A size that is none stands for that of the view.
inline const SettingKey<QSize> PictureSize{"PictureSize", {}};
inline const SettingKey<bool> PictureKeepProportions{"PictureKeepProportions", true};
inline const SettingKey<bool> PictureTransparent{"PictureTransparent", false};
inline const SettingKey<int> PictureKind{"PictureKind", 0}; ///< of the view, of frames, a turntable
inline const SettingKey<int> PictureStep{"PictureStep", 1}; ///< from frame to frame
inline const SettingKey<int> PictureTurns{"PictureTurns", 36};
inline const SettingKey<bool> PictureTurnFrames{"PictureTurnFrames", false}; ///< the turntable's model moves

// What was open, and how it was looked at, when the window was last seen; kept only where it is wanted.
inline const SettingKey<bool> RestoreSession{"RestoreSession", false};
inline const SettingKey<QVariantMap> Session{"Session", {}};

// The fields that the table does not show, a list of their ids for each kind of record.
inline const SettingKey<QVariantMap> TableColumns{"TableColumns", {}};

// The keys of commands that are not the usual ones, "id=keys" each, as QKeySequence writes them portably.
inline const SettingKey<QStringList> Shortcuts{"Shortcuts", {}};

// Main window. The first three hold the window itself, the others its docks, tool bars and splitters.
inline const SettingKey<QSize> MainWindowSize{"MainWindowSize", {}};
inline const SettingKey<QPoint> MainWindowPos{"MainWindowPos", {}};
inline const SettingKey<bool> MainWindowMaximized{"MainWindowMaximized", false};
inline const SettingKey<QByteArray> MainWindowState{"MainWindowState", {}};
inline const SettingKey<QVariantMap> MainWindowSplitters{"MainWindowSplitters", {}};
inline const SettingKey<QByteArray> MainWindowChecksum{"MainWindowChecksum", {}}; // of these two
} // namespace Settings

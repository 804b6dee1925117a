#pragma once

#include "coords/coordinate_fields.h"
#include "gps/gps.h"
#include "gps/gps_intake.h"
#include "map/map_bridge.h"
#include "map/map_feed.h"
#include "map/markers.h"
#include "map/point_picking.h"
#include "map/turn_feed.h"
#include "matching/clock_offset.h"
#include "matching/matcher.h"
#include "matching/matching_outlets.h"
#include "matching/neighbour_placing.h"
#include "matching/photo_gaps.h"
#include "photos/file_browser.h"
#include "photos/photo_intake.h"
#include "photos/photos.h"
#include "places/place_names.h"
#include "platform/log_file.h"
#include "recovery/unsaved_work_keeper.h"
#include "saving/missing_photos.h"
#include "saving/quit_warning.h"
#include "saving/remove_all_photos.h"
#include "saving/renaming.h"
#include "saving/save_pipeline.h"
#include "saving/saving.h"
#include "shell/apply_report.h"
#include "shell/camera_memory.h"
#include "shell/cameras.h"
#include "shell/clock_line.h"
#include "shell/clock_proposal.h"
#include "shell/clock_saying.h"
#include "shell/detail_fields.h"
#include "shell/inspector.h"
#include "shell/intake_notes.h"
#include "shell/library_counts.h"
#include "shell/log_intake_adapter.h"
#include "shell/offset_in_force.h"
#include "shell/old_position_notice.h"
#include "shell/photo_order.h"
#include "shell/preferences.h"
#include "shell/preview.h"
#include "shell/reading_offer.h"
#include "shell/recovery_offers.h"
#include "shell/sample_outing.h"
#include "shell/thumbnails.h"
#include "shell/time_strip.h"
#include "shell/true_time.h"
#include "shell/undo_commands.h"
#include "shell/unfit_text.h"
#include "shell/version_check.h"
#include "shell/wizard.h"
#include "shell/wizard_details.h"
#include "shell/wizard_end.h"

namespace pinmora {

class Pinmora_AppDelegate;

/// One of each subsystem, made in this order once the library is open.
struct Subsystems {
    Subsystems(Pinmora_AppDelegate &owner, const std::filesystem::path &resourceFolder,
               PixelSize screen);
    Subsystems(const Subsystems &) = delete;
    Subsystems &operator=(const Subsystems &) = delete;
    ~Subsystems() = default;

    /// Makes the records that a run stands on.
    void makeRecords(Context &context, ObjectController<degrees> &degreeObj);

    LibraryArrays &arrays;
    Gps gps;
    UnsavedWorkKeeper unsavedWork;
    PlaceNames placeNames;
    LogIntakeAdapter logs;
    Photos photos;
    GpsIntake gpsIntake;
    PhotoIntake photoIntake;
    MatchingOutlets matching;
    OffsetInForce offsetInForce;
    ClockOffset clockOffset;
    Matcher matcher;
    CameraMemory cameraMemory;
    Cameras cameras;
    ClockSaying clockSaying;
    ClockLine clockLine;
    TrueTime trueTime;
    CoordinateFields coordinates;
    DetailFields details;
    UnfitText unfitText;
    PhotoGaps gaps;
    NeighbourPlacing neighbours;
    TimeStrip timeStrip;
    PhotoOrder photoOrder;
    LibraryCounts counts;
    UndoCommands undoCommands;
    Preview preview;
    Thumbnails thumbnails;
    Saving saving;
    RenamingOutlets renamingOutlets;
    Renaming renaming;
    FileBrowserOutlets browserOutlets;
    FileBrowser fileBrowser;
    MissingPhotosOutlets missingOutlets;
    MissingPhotos missingPhotos;
    LogFile log;
    SaveMarks saveMarks;
    SaveOutlets saveOutlets;
    SavePipeline savePipeline;
    RemoveAllPhotos removeAllPhotos;
    InspectorOutlets inspectorOutlets;
    Inspector inspector;
    MapFeed mapFeed; ///< before the bridge: a new page gets the drawing before the pointer
    MapBridge mapBridge;
    PointPicking pointPicking;
    TurnFeed turnFeed;
    Markers markers;
    QuitWarning quitWarning;
    IntakeNotes intakeNotes;
    ReadingOffer readingOffer;
    ClockProposal clockProposal;
    OldPositionNotice oldPositionNotice;
    ApplyReport applyReport;
    RecoveryOffers recoveryOffers;
    SampleOuting sampleOuting;
    WizardDetails wizardDetails;
    WizardOutlets wizardOutlets;
    Wizard wizard;
    WizardEnd wizardEnd;
    VersionCheck versionCheck;
    Preferences preferences;

    Window logWindow;    ///< shows the log file
    Window manualWindow; ///< shows the manual
    Window preferencesWindow;

private:
    std::vector<Date> timesOfTurn() const;
    SaveSurroundings saveSurroundings(Pinmora_AppDelegate &owner);

    std::vector<Connection> connections_;
};

} // namespace pinmora

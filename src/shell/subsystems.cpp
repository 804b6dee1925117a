#include "shell/subsystems.h"

#include "matching/turned_photos.h"
#include "places/place_settings.h"
#include "platform/application_support.h"
#include "shell/pinmora_app_delegate.h"
#include "shell/remembered_clocks.h"
#include "store/offset.h"
#include "store/start_records.h"

namespace pinmora {

Subsystems::Subsystems(Pinmora_AppDelegate &owner, const std::filesystem::path &resourceFolder,
                       PixelSize screen)
    : arrays(owner.library.arrays()),
      gps(owner.library.managedObjectContext(), owner.interface.progress, owner.interface.errors),
      unsavedWork(owner.library, gps),
      placeNames(owner.library.managedObjectContext(), [&owner] { return owner.placeService(); }),
      logs(gps), photos(owner.library.managedObjectContext(), logs, owner.photoTypes),
      gpsIntake(owner.library.managedObjectContext(), gps, owner.interface.progress, owner.defaults,
                owner.interface.workingWindow, owner.interface.loadRunning),
      photoIntake(owner.library.managedObjectContext(), photos, owner.interface.progress,
                  owner.interface.statusLine, owner.defaults, owner.interface.workingWindow,
                  owner.interface.loadRunning),
      matching{.pictureArray = arrays.pictureArray,
               .degreeObj = owner.interface.degreeObj,
               .addRemoveMarker = owner.interface.addRemoveMarker,
               .webView1 = owner.interface.webView1,
               .webView2 = owner.interface.webView2,
               .inWizard = owner.interface.inWizard,
               .progress = owner.interface.progress},
      offsetInForce(owner.library.managedObjectContext(), matching.offsetObj),
      clockOffset(owner.library.managedObjectContext(), matching),
      matcher(owner.library.managedObjectContext(), owner.notifications, clockOffset, matching),
      cameraMemory(owner.library.managedObjectContext(), matching.offsetObj, owner.defaults),
      cameras(owner.library.managedObjectContext(), matching.offsetObj, clockOffset,
              owner.interface.workingWindow),
      clockSaying(owner.library.managedObjectContext(), matching, clockOffset),
      clockLine(owner.library.managedObjectContext(), matching.offsetObj, arrays.pictureArray,
                clockSaying),
      trueTime(matching, matcher, owner.interface.workingWindow),
      coordinates(owner.library.managedObjectContext(), owner.interface.degreeObj,
                  arrays.pictureArray, owner.editing),
      details(owner.library.managedObjectContext(), arrays.pictureArray, owner.editing),
      unfitText(owner.editing, coordinates, details, owner.interface.mainTabs,
                owner.interface.quietBar),
      gaps(owner.library.managedObjectContext(), matching.offsetObj),
      neighbours(owner.library.managedObjectContext(), matching, gaps.points()),
      timeStrip(owner.library.managedObjectContext(), arrays, gaps, clockOffset, matcher,
                [&owner] { owner.notifications.post(tableSelectionDidChange); }),
      photoOrder(arrays.pictureArray, gaps), counts(owner.library.managedObjectContext()),
      undoCommands(owner.library.managedObjectContext()), preview(owner.interface.preview, screen),
      saving(resourceFolder), renamingOutlets{.pictureArray = arrays.pictureArray,
                                              .newFileName = photos.newFileName,
                                              .newFileName2 = photos.newFileName2,
                                              .mainTabs = owner.interface.mainTabs,
                                              .inWizard = owner.interface.inWizard},
      renaming(owner.library.managedObjectContext(), saving, renamingOutlets,
               owner.interface.workingWindow,
               [this] { photoOrder.order.set({.key = "date", .ascending = true}); }),
      fileBrowser(browserOutlets, owner.interface.workspace, homeFolder()),
      missingOutlets{.browser = browserOutlets},
      missingPhotos(
          owner.library.managedObjectContext(), arrays.pictureArray, missingOutlets, fileBrowser,
          owner.interface.saveFlags, owner.interface.workingWindow,
          {.updatePicts = [this] { savePipeline.updatePicts(); },
           .selectionChanged = [&owner] { owner.notifications.post(tableSelectionDidChange); },
           .dealWithPict = [this](const std::string &path) { preview.dealWithPict(path); }}),
      log(owner.library.applicationSupportFolder() / "Pinmora.log"),
      saveMarks(owner.library.managedObjectContext()),
      savePipeline(saveOutlets, saveSurroundings(owner)),
      removeAllPhotos(owner.library, owner.interface.workingWindow,
                      [&owner] { owner.notifications.post(tableSelectionDidChange); }),
      inspectorOutlets{.window = owner.interface.window,
                       .wizardWindow = owner.interface.wizardWindow,
                       .fullView = owner.interface.fullView,
                       .degreeObj = owner.interface.degreeObj,
                       .addRemoveMarker = owner.interface.addRemoveMarker,
                       .addRemoveMarker2 = owner.interface.addRemoveMarker2},
      inspector(owner.library.managedObjectContext(), owner.notifications, arrays, inspectorOutlets,
                matching, renamingOutlets, preview, [this] { missingPhotos.openForLooking(); }),
      mapFeed(owner.library.managedObjectContext(), {.webView1 = owner.interface.webView1,
                                                     .webView2 = owner.interface.webView2,
                                                     .pictureArray = arrays.pictureArray}),
      mapBridge(owner.library.managedObjectContext(), {.webView1 = owner.interface.webView1,
                                                       .webView2 = owner.interface.webView2,
                                                       .inWizard = owner.interface.inWizard,
                                                       .pictureArray = arrays.pictureArray,
                                                       .degreeObj = owner.interface.degreeObj,
                                                       .editing = owner.editing}),
      pointPicking(
          owner.library.managedObjectContext(), mapBridge,
          {.webView1 = owner.interface.webView1,
           .webView2 = owner.interface.webView2,
           .pictureArray = arrays.pictureArray},
          [this](double lat, double lon) { matcher.setFromPlace({.lat = lat, .lon = lon}); }),
      turnFeed({.webView1 = owner.interface.webView1,
                .webView2 = owner.interface.webView2,
                .inWizard = owner.interface.inWizard},
               [this] { return timesOfTurn(); }),
      markers(
          owner.library.managedObjectContext(),
          {.webView1 = owner.interface.webView1,
           .webView2 = owner.interface.webView2,
           .inWizard = owner.interface.inWizard,
           .addRemoveMarker = owner.interface.addRemoveMarker,
           .addRemoveMarker2 = owner.interface.addRemoveMarker2,
           .offsetButton2 = matching.offsetButton2,
           .pictureArray = arrays.pictureArray,
           .editing = owner.editing},
          [this] { return inspector.lastPictObjectWithLatLon(); },
          [this] { return matcher.runningApplyToAll(); }),
      quitWarning(owner.interface.workingWindow,
                  {.updatePicts = [this] { savePipeline.updatePicts(); },
                   .saveAction =
                       [this, &library = owner.library] {
                           wizardEnd.takeName(); // it is part of what has been done
                           library.saveAction();
                       },
                   .terminate = [&owner] { owner.terminate.emit(); },
                   .forgetUnsaved = [this] { unsavedWork.forget(); }}),
      intakeNotes(owner.library.managedObjectContext(), gpsIntake, photoIntake, logs,
                  owner.photoTypes, owner.defaults, owner.interface.quietBar),
      readingOffer(owner.library.managedObjectContext(), gps, gpsIntake, photoIntake, logs,
                   matching.offsetObj, owner.defaults, owner.interface.progress,
                   owner.interface.quietBar, owner.interface.loadRunning),
      clockProposal({.context = owner.library.managedObjectContext(),
                     .clockOffset = clockOffset,
                     .gaps = gaps,
                     .matcher = matcher,
                     .readingOffer = readingOffer,
                     .quietBar = owner.interface.quietBar,
                     .loadRunning = owner.interface.loadRunning}),
      oldPositionNotice(owner.library.managedObjectContext(), owner.defaults,
                        owner.interface.quietBar),
      applyReport(owner.library.managedObjectContext(), arrays.pictureArray, matcher, neighbours,
                  owner.interface.quietBar,
                  [&owner] { owner.notifications.post(tableSelectionDidChange); }),
      recoveryOffers(unsavedWork, owner.interface.quietBar, owner.interface.errors,
                     owner.interface.statusLine),
      sampleOuting(photoIntake, resourceFolder),
      wizardDetails(owner.library.managedObjectContext(), arrays.pictureArray,
                    matching.offsetText2),
      wizardOutlets{.window = owner.interface.window,
                    .wizardWindow = owner.interface.wizardWindow,
                    .inWizard = owner.interface.inWizard,
                    .webView2 = owner.interface.webView2,
                    .theImageView2 = owner.interface.preview.theImageView2},
      wizard(wizardOutlets, wizardDetails,
             {.defaults = owner.defaults,
              .hasTrackData = [&library = owner.library] { return library.hasTrackData(); },
              .windowChanged = [this] { inspector.sendPointer(); }}),
      wizardEnd({.nextButtonAppliedAll = matching.nextButtonAppliedAll,
                 .congrats1 = matching.congrats1,
                 .congrats2 = matching.congrats2,
                 .savePhotosButton = saveOutlets.savePhotosButton,
                 .inWizard = owner.interface.inWizard,
                 .changeName = renamingOutlets.changeName,
                 .changeName2 = renamingOutlets.changeName2,
                 .changeName3 = renamingOutlets.changeName3},
                counts),
      versionCheck(owner.defaults), preferences(owner.defaults) {
    gps.setImportJournal(&unsavedWork.recorder());
    placeNames.setEnabled(looksUpPlaces(owner.defaults));
    owner.library.managedObjectModel().setPlaceNames(&placeNames);
    owner.library.managedObjectContext().setEndEditing(
        [&editing = owner.editing] { return editing.commitEditing(); });
    connections_.push_back(gpsIntake.loaded.connect([this](auto &) { inspector.logsLoaded(); }));
    connections_.push_back(
        photoIntake.loaded.connect([this](auto &, auto &) { inspector.tableSelectionChanged(); }));
    connections_.push_back(readingOffer.readAgain.connect([this] { inspector.logsLoaded(); }));
    connections_.push_back(
        matching.nextButtonAppliedAll.pressed.connect([this] { savePipeline.updatePicts(); }));
    connections_.push_back(
        clockOffset.turning.onChange([this](const std::optional<ClockTurn> &turn) {
            turnFeed.turned(turn ? std::optional(turn->by) : std::nullopt);
        }));
    connections_.push_back(
        cameraMemory.brought.connect([this, &owner](const CameraOffsets &clocks) {
            owner.interface.quietBar.post(rememberedClocksNote(clocks, [this] { cameras.open(); }));
        }));
    connections_.push_back(
        counts.counts.onChange([this](const Counts &) { pointPicking.offer(); }));
    connections_.push_back(mapBridge.pointerWanted.connect([this] { inspector.sendPointer(); }));
}

/// Of the photos whose clock is being turned.
std::vector<Date> Subsystems::timesOfTurn() const {
    const std::optional<ClockTurn> &turn = clockOffset.turning.get();
    const offset *const stored = matching.offsetObj.content();
    return turn && stored ? timesByClock(*stored->context(), clockOffset, *stored, turn->camera)
                          : std::vector<Date>();
}

SaveSurroundings Subsystems::saveSurroundings(Pinmora_AppDelegate &owner) {
    return {.library = owner.library,
            .saving = saving,
            .missing = missingPhotos,
            .marks = saveMarks,
            .flags = owner.interface.saveFlags,
            .log = log,
            .defaults = owner.defaults,
            .quietBar = owner.interface.quietBar,
            .statusLine = owner.interface.statusLine,
            .errors = owner.interface.errors,
            .workspace = owner.interface.workspace,
            .workingWindow = owner.interface.workingWindow,
            .awaitedNames = placeNames.awaited,
            .momentOfSnapshot = [this] { return unsavedWork.moment(); },
            .exported = [this](std::size_t moment) { unsavedWork.exported(moment); },
            .begins = [this] { wizardEnd.takeName(); },
            .showLog = [this] { logWindow.makeKeyAndOrderFront(); },
            .terminate = [&owner] { owner.terminate.emit(); }};
}

void Subsystems::makeRecords(Context &context, ObjectController<degrees> &degreeObj) {
    const StartRecords records = makeStartRecords(context);
    inspectorOutlets.theCurrImage.setContent(&records.currentPicture);
    degreeObj.setContent(&records.shownPosition);
    matching.offsetObj.setContent(&records.clockOffset);
}

} // namespace pinmora

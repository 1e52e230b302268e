#include "simulator/SupervisedChips.h"

#include "simulator/ChipsMapping.h"

namespace Simulator {

namespace {

ChipDriver imagesOf( ChipDriver const & chips, SwitchDescription const & description, ChipsMapping const * mapping ) {
   ChipDriver images;
   bool const isWarm = mapping && mapping->generation() > 1;
   for ( auto const & fap : description.faps ) {
      auto const * const chip = chips.chip( fap.fapId );
      if ( !chip ) {
         continue; // of another family
      }
      auto & image = images.chipIs( fap.fapId,
                                    Hardware::chipTypeName( fap.revision.chipType() ),
                                    chip->map(),
                                    mapping ? mapping->expected( fap.fapId ) : ChipMemory::own( chip->map() ) );
      if ( !isWarm ) {
         image.takeContents( *chip );
      }
   }
   return images;
}

} // namespace

SupervisedChips::SupervisedChips( ChipDriver & chips,
                                  SwitchDescription const & description,
                                  Journal & journal,
                                  ChipsMapping const * mapping,
                                  Supervision supervision )
   : chips_( chips ), journal_( journal ), expected_( imagesOf( chips, description, mapping ) ),
     faulty_(
        chips,
        description,
        { .fired = [this]( FiredFault const & it ) { fires( it ); }, .delays = std::move( supervision.delays ) } ),
     shadow_( expected_,
              chips,
              std::move( supervision.degraded ),
              [this]( ChipId chip, SchanAddress const & at ) { misses( chip, at ); } ),
     audit_( chips, shadow_ ) {
   DaceSal::schanDriverIs( &shadow_ );
}

SupervisedChips::~SupervisedChips() {
   if ( DaceSal::schanDriver() == &shadow_ ) {
      DaceSal::schanDriverIs( &chips_ );
   }
}

void SupervisedChips::fires( FiredFault const & fired ) {
   ++fired_;
   journal_.faultFired( fired );
}

void SupervisedChips::misses( ChipId chip, SchanAddress const & at ) {
   if ( auto const place = faulty_.placeOf( chip, at ) ) {
      std::vector< U32 > words( place->layout->width );
      chips_.read( chip, at, words );
      journal_.faultFired( { .what = "missed", .chip = chip, .place = *place, .words = words, .isByOperation = true } );
   }
}

U32 SupervisedChips::arm( Fault const & fault ) {
   U32 const number = faulty_.arm( fault );
   shadow_.underIs( faulty_ );
   return number;
}

bool SupervisedChips::disarm( U32 number ) {
   bool const was = faulty_.disarm( number );
   if ( faulty_.armed().empty() ) {
      shadow_.underIs( chips_ );
   }
   return was;
}

void SupervisedChips::disarmAll() {
   faulty_.disarmAll();
   shadow_.underIs( chips_ );
}

} // namespace Simulator

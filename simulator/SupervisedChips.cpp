#include "simulator/SupervisedChips.h"

#include "simulator/ChipsMapping.h"
#include "simulator/TableMap.h"

namespace Simulator {

namespace {

ChipDriver imagesOf( ChipDriver & chips, SwitchDescription const & description, ChipsMapping const * mapping ) {
   ChipDriver images;
   for ( auto const & fap : description.faps ) {
      auto const chipType = fap.revision.chipType();
      AddressMap const & map = addressMap( chipType );
      bool const isWarm = mapping && mapping->generation() > 1;
      auto & image = images.chipIs( ChipId{ fap.fapId.value() },
                                    Hardware::chipTypeName( chipType ),
                                    map,
                                    mapping ? mapping->expected( fap.fapId ) : ChipMemory::own( map ) );
      if ( !isWarm ) {
         image.takeContents( *chips.chip( fap.fapId ) );
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
   : chips_( chips ), journal_( journal ), supervision_( std::move( supervision ) ),
     expected_( imagesOf( chips, description, mapping ) ),
     faulty_( chips,
              description,
              { .fired = [this]( FiredFault const & it ) { fires( it ); }, .delays = supervision_.delays } ),
     shadow_( expected_,
              chips,
              supervision_.degraded,
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
   if ( supervision_.fired ) {
      supervision_.fired( fired );
   }
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

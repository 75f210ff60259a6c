<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>LANFaxSetupTitle</source>
        <translation>LAN Fax Setup</translation>
    </message>
    <message>
        <source>FaxRecipientsLabel</source>
        <translation>Recipients</translation>
    </message>
    <message>
        <source>FaxNameColumn</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>FaxNumberColumn</source>
        <translation>Fax Number</translation>
    </message>
    <message>
        <source>FaxOrganizationColumn</source>
        <translation>Organization</translation>
    </message>
    <message>
        <source>FaxRecipientCount</source>
        <translation>%1 recipients</translation>
    </message>
    <message>
        <source>FaxOneRecipient</source>
        <translation>1 recipient</translation>
    </message>
    <message>
        <source>FaxFromAddressBook</source>
        <translation>From the address book</translation>
    </message>
    <message>
        <source>FaxTypedNameLabel</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>FaxTypedNamePlaceholder</source>
        <translation>First Last</translation>
    </message>
    <message>
        <source>FaxTypedNumberLabel</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>FaxTypedNumberPlaceholder</source>
        <translation>+1 (555) 123-4567</translation>
    </message>
    <message>
        <source>FaxAddButton</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>FaxAddressBookButton</source>
        <translation>Address Book…</translation>
    </message>
    <message>
        <source>FaxEditButton</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>FaxRemoveButton</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>FaxSaveGroupButton</source>
        <translation>Save as Group…</translation>
    </message>
    <message>
        <source>FaxOptionsLabel</source>
        <translation>Fax Options</translation>
    </message>
    <message>
        <source>FaxConfirmationLabel</source>
        <translation>Confirmation:</translation>
    </message>
    <message>
        <source>FaxSendSpeedLabel</source>
        <translation>Send speed:</translation>
    </message>
    <message>
        <source>FaxResolutionLabel</source>
        <translation>Resolution:</translation>
    </message>
    <message>
        <source>FaxSendTimeLabel</source>
        <translation>Send:</translation>
    </message>
    <message>
        <source>FaxSendNow</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>FaxSendLater</source>
        <translation>At</translation>
    </message>
    <message>
        <source>FaxDialingPrefixLabel</source>
        <translation>Dialing prefix:</translation>
    </message>
    <message>
        <source>FaxCreditCardLabel</source>
        <translation>Credit card:</translation>
    </message>
    <message>
        <source>FaxCoverSheetLabel</source>
        <translation>Cover sheet:</translation>
    </message>
    <message>
        <source>FaxCoverNotesLabel</source>
        <translation>Notes:</translation>
    </message>
    <message>
        <source>FaxCoverNotesPlaceholder</source>
        <translation>Notes printed on the cover sheet</translation>
    </message>
    <message>
        <source>FaxPromptDuplicateLabel</source>
        <translation>Ask before adding a recipient twice</translation>
    </message>
    <message>
        <source>FaxPromptRemoveLabel</source>
        <translation>Ask before removing recipients</translation>
    </message>
    <message>
        <source>FaxNoNumberHeader</source>
        <translation>No Fax Number</translation>
    </message>
    <message>
        <source>FaxNoNumberMessage</source>
        <translation>Type the fax number to send to.</translation>
    </message>
    <message>
        <source>FaxNothingToDialMessage</source>
        <translation>“%1” has no digits to dial. Type the number with its digits, for example +1 (555) 123-4567.</translation>
    </message>
    <message>
        <source>FaxDialingTooLongHeader</source>
        <translation>Fax Number Too Long</translation>
    </message>
    <message>
        <source>FaxDialingTooLongMessage</source>
        <translation>The number for %1 would dial %3 characters, with the dialing prefix. The printer dials at most %2. Shorten the number or the prefix.</translation>
    </message>
    <message>
        <source>FaxDuplicateHeader</source>
        <translation>Recipient Already in the List</translation>
    </message>
    <message>
        <source>FaxDuplicateMessage</source>
        <translation>%1 (%2) is already a recipient of this fax. Add it again?</translation>
    </message>
    <message>
        <source>FaxRemoveHeader</source>
        <translation>Remove Recipients</translation>
    </message>
    <message>
        <source>FaxRemoveOneMessage</source>
        <translation>Remove the selected recipient from this fax?</translation>
    </message>
    <message>
        <source>FaxRemoveManyMessage</source>
        <translation>Remove the %1 selected recipients from this fax?</translation>
    </message>
    <message>
        <source>FaxSendTimePastHeader</source>
        <translation>Send Time Has Passed</translation>
    </message>
    <message>
        <source>FaxSendTimePastMessage</source>
        <translation>The fax is set to be sent at %1, which is not in the future. Choose a later time or choose Send: Now.</translation>
    </message>
    <message>
        <source>FaxAddressBookTitle</source>
        <translation>Address Book</translation>
    </message>
    <message>
        <source>FaxAddressBookSearch</source>
        <translation>Search names, organizations and numbers</translation>
    </message>
    <message>
        <source>FaxAddressBookChooseFolder</source>
        <translation>Choose Folder…</translation>
    </message>
    <message>
        <source>FaxAddressBookIn</source>
        <translation>Contacts from %1</translation>
    </message>
    <message>
        <source>FaxAddressBookEmpty</source>
        <translation>No contacts with a fax number in %1</translation>
    </message>
    <message>
        <source>FaxGroupMembers</source>
        <translation>Group of %1</translation>
    </message>
    <message>
        <source>FaxRecipientTitle</source>
        <translation>Fax Recipient</translation>
    </message>
    <message>
        <source>FaxFirstNameLabel</source>
        <translation>First name:</translation>
    </message>
    <message>
        <source>FaxLastNameLabel</source>
        <translation>Last name:</translation>
    </message>
    <message>
        <source>FaxNumberLabel</source>
        <translation>Fax number:</translation>
    </message>
    <message>
        <source>FaxOrganizationLabel</source>
        <translation>Organization:</translation>
    </message>
    <message>
        <source>FaxPhoneLabel</source>
        <translation>Phone:</translation>
    </message>
    <message>
        <source>FaxEmailLabel</source>
        <translation>E-mail:</translation>
    </message>
    <message>
        <source>FaxMailboxLabel</source>
        <translation>Mailbox:</translation>
    </message>
    <message>
        <source>FaxGroupNameTitle</source>
        <translation>Save as Group</translation>
    </message>
    <message>
        <source>FaxGroupNameLabel</source>
        <translation>Save these recipients in the address book as the group:</translation>
    </message>
    <message>
        <source>FaxGroupNameDefault</source>
        <translation>Fax Recipients</translation>
    </message>
    <message>
        <source>FaxGroupSavedHeader</source>
        <translation>Group Saved</translation>
    </message>
    <message>
        <source>FaxGroupSavedMessage</source>
        <translation>The group “%1” with %2 recipients is in the address book.</translation>
    </message>
    <message>
        <source>FaxGroupFailedHeader</source>
        <translation>Group Not Saved</translation>
    </message>
    <message>
        <source>FaxGroupFailedMessage</source>
        <translation>The address book in %1 could not be written. Check that the folder exists and that you may write to it.</translation>
    </message>
</context>
</TS>
